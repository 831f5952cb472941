// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VERDICT_H
#define GAMUTVIEWER_VERDICT_H

#include "display/assessment.h"

#include <QFrame>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace gamutviewer {

class TargetSession;

/*!
 * \brief Whether the display can show the target, and keeps to the tolerances: the verdict, its grounds in a list, each
 * with what to do, and the way out. A line that is chosen is pointed out on the diagram.
 */
class Verdict : public QFrame {
    Q_OBJECT

public:
    explicit Verdict(TargetSession *session, QWidget *parent = nullptr);

    /*! \brief Verdict and grounds, on a line each. */
    QString text() const;
    QPushButton *fitButton() const { return m_fit; }
    QListWidget *lines() const { return m_lines; }

private:
    void refresh();
    void show(const Assessment &assessment);
    void pointOut(const QListWidgetItem *item);

    TargetSession *m_session;
    QLabel *m_verdict;
    QListWidget *m_lines;
    QPushButton *m_fit;
    bool m_fitsWall = false; // which is what the button does
};

} // namespace gamutviewer

#endif
