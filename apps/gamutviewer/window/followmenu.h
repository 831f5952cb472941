// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_FOLLOWMENU_H
#define GAMUTVIEWER_FOLLOWMENU_H

#include "display/gamutfiles.h"

#include <QMenu>

#include <memory>

class QLabel;

namespace gamutviewer {

class Document;
class FollowedInput;
class Following;

/*!
 * \brief Follows a measurement while it is made, and shows it over the document: what is followed, what becomes of it,
 * and a label that says how far it is.
 */
class FollowMenu : public QMenu {
    Q_OBJECT

public:
    /*! \param document must outlive the menu */
    explicit FollowMenu(Document *document, QWidget *parent = nullptr);
    ~FollowMenu() override;

    /*!
     * \brief Follows \a input from now on, instead of what was followed before, which is kept. Where there is not
     * enough memory to keep that, it stays.
     */
    void follow(std::unique_ptr<FollowedInput> input, const MeasurementOptions &options = MeasurementOptions());
    /*!
     * \brief Takes what has been measured so far into the document, as a step of its history; false if there is not
     * enough memory for it, which the label says.
     */
    bool keep();
    /*! \brief Follows no more; what has been measured so far is kept, or else false is returned as by keep(). */
    bool stop();
    /*! \brief Nothing while nothing is followed. */
    const Following *following() const { return m_following.get(); }
    /*! \brief Keeps what would be lost with the window, as it cannot be read again; false as by keep(). */
    bool keepWhatWouldBeLost();

    /*! \brief Says how far it is; its tool tip why the last line could not be read. Hidden while nothing is followed.
     */
    QLabel *label() const { return m_label; }
    QAction *followAction() const { return m_follow; }
    QAction *keepAction() const { return m_keep; }
    QAction *stopAction() const { return m_stop; }

private:
    void followByDialog();
    void show();
    void showLatest();
    template <typename Action>
    bool whileMemoryLasts(const Action &action);
    void refresh();
    void refreshLabel();
    QString text() const;
    QString progressText() const;
    QString details() const;

    Document *m_document;
    std::unique_ptr<Following> m_following;
    QLabel *m_label;
    QAction *m_follow;
    QAction *m_keep;
    QAction *m_stop;
};

} // namespace gamutviewer

#endif
