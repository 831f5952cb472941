// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TOLERANCESMENU_H
#define GAMUTVIEWER_TOLERANCESMENU_H

#include "editing/openedfiles.h"

#include <QMenu>

namespace gamutviewer {

class TargetSession;

/*!
 * \brief Chooses the tolerances by which the display is judged: none, those that come with the program, or a file.
 *
 * The choice is remembered for the user.
 */
class TolerancesMenu : public QMenu {
    Q_OBJECT

public:
    /*! \param session must outlive the menu */
    explicit TolerancesMenu(TargetSession *session, QWidget *parent = nullptr);

    /*! \brief Judges by the file \a fileName, or by nothing if it is empty; false, with refused(), when that fails. */
    bool choose(const QString &fileName);
    /*! \brief The file that was chosen; empty for none. */
    const QString &fileName() const { return m_fileName; }

Q_SIGNALS:
    /*! \brief A file cannot be read; \a reason is for people. */
    void refused(const QString &reason);
    /*! \brief A file was chosen of which the user must know \a warnings. */
    void warned(const QVector<FileWarning> &warnings);

private:
    void fill();
    void chooseByDialog();
    bool read(const QString &fileName);

    TargetSession *m_session;
    QString m_fileName;
};

} // namespace gamutviewer

#endif
