// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TARGETVIEW_H
#define GAMUTVIEWER_TARGETVIEW_H

#include <ceiechart/diagram/diagramview.h>

namespace gamutviewer {

class TargetSession;

/*!
 * \brief A diagram on which the session's target is edited; what else it shows is up to derived views.
 *
 * Any number of them share a session: what is dragged in one moves in the others, and a drag is one step of the
 * history.
 */
class TargetView : public ceiechart::DiagramView {
    Q_OBJECT

public:
    explicit TargetView(TargetSession *session, QWidget *parent = nullptr);

protected:
    TargetSession *session() const { return m_session; }
    /*! \brief Shows the document's target if that is another than the one shown: what a drag made is shown already. */
    void followTarget();
    /*! \brief Adds to the label at the handle how far the selected colour lies outside of what can be shown. */
    void noteOutside();
    /*! \brief Marks what the session has selected, unless the view is read-only. */
    void followSelection();

private:
    TargetSession *m_session;
};

} // namespace gamutviewer

#endif
