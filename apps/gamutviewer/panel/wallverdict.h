// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_WALLVERDICT_H
#define GAMUTVIEWER_WALLVERDICT_H

#include "panel/verdictframe.h"

#include <cstddef>
#include <vector>

class QToolButton;

namespace gamutviewer {

class TargetSession;

/*!
 * \brief Whether all cabinets of the wall show the target, the grounds, and the ways out. A ground that is chosen
 * selects the cabinet that it is about.
 */
class WallVerdict : public VerdictFrame {
    Q_OBJECT

public:
    explicit WallVerdict(TargetSession *session, QWidget *parent = nullptr);

    /*! \brief Shows the wall as it is now. */
    void refresh();
    QToolButton *fitButton() const { return m_fit; }
    /*! \brief Judges the wall without those that fail, if they are few, or else without the one that is selected. */
    QToolButton *withoutButton() const { return m_without; }
    /*! \brief Counts all cabinets again; hidden while none is left out. */
    QToolButton *countAgainButton() const { return m_again; }
    QToolButton *exportButton() const { return m_export; }

Q_SIGNALS:
    /*! \brief The user wants the corrections written to a file. */
    void exportWanted();

private:
    std::vector<std::size_t> cabinetsToLeaveOut() const;

    TargetSession *m_session;
    QToolButton *m_fit;
    QToolButton *m_without;
    QToolButton *m_again;
    QToolButton *m_export;
};

} // namespace gamutviewer

#endif
