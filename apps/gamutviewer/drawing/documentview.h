// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DOCUMENTVIEW_H
#define GAMUTVIEWER_DOCUMENTVIEW_H

#include <ceiechart/diagram/diagramview.h>

namespace gamutviewer {

class LayerSwitches;
class TargetSession;

/*!
 * \brief A diagram of the session's document, on which the target is edited.
 *
 * Any number of them share a session: what is dragged in one moves in the others, and a drag is one step of the
 * history.
 */
class DocumentView : public ceiechart::DiagramView {
    Q_OBJECT

public:
    DocumentView(TargetSession *session, const LayerSwitches *switches, QWidget *parent = nullptr);

    /*! \brief Shows the document as it is now. */
    void refresh();

private:
    void applyRules();
    void note();
    QVector<ceiechart::DiagramRings> rings() const;

    TargetSession *m_session;
    const LayerSwitches *m_switches;
};

} // namespace gamutviewer

#endif
