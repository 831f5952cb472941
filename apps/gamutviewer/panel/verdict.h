// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VERDICT_H
#define GAMUTVIEWER_VERDICT_H

#include "panel/verdictframe.h"

class QPushButton;

namespace gamutviewer {

class TargetSession;

/*!
 * \brief Whether the display can show the target, and keeps to the tolerances: the verdict, its grounds in a list, each
 * with what to do, and the way out. A line that is chosen is pointed out on the diagram.
 */
class Verdict : public VerdictFrame {
    Q_OBJECT

public:
    explicit Verdict(TargetSession *session, QWidget *parent = nullptr);

    QPushButton *fitButton() const { return m_fit; }

private:
    void refresh();

    TargetSession *m_session;
    QPushButton *m_fit;
    bool m_fitsWall = false; // which is what the button does
};

} // namespace gamutviewer

#endif
