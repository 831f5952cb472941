// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/targetview.h"

#include "editing/document.h"
#include "editing/targetsession.h"

namespace gamutviewer {

TargetView::TargetView(TargetSession *session, QWidget *parent)
    : DiagramView(parent)
    , m_session(session)
{
    setReadoutShown(false); // the window has it for all views
    connect(this, &DiagramView::editingStarted, this,
        [this] { m_session->beginDrag(selectedVertex().value_or(m_session->selected().value_or(Vertex::Red))); });
    connect(this, &DiagramView::targetEdited, this,
        [this](const Model::ColorGamut &gamut) { m_session->dragTo(gamut.getTargets()); });
    connect(this, &DiagramView::editingCanceled, m_session, &TargetSession::cancelDrag);
    connect(this, &DiagramView::editingFinished, m_session, &TargetSession::endDrag);
    connect(this, &DiagramView::editRefused, m_session, &TargetSession::refuse);
    connect(this, &DiagramView::selectedVertexChanged, this, [this] {
        // Without handles none can be selected here, which says nothing of the others.
        const ceiechart::DiagramGamut *target = content().find(ceiechart::GamutRole::Target);
        if (selectedVertex() || (!isReadOnly() && target && content().shows(*target))) {
            m_session->select(selectedVertex());
        }
    });
    connect(session, &TargetSession::selectionChanged, this, &TargetView::followSelection);
    connect(session, &TargetSession::rulesChanged, this, [this] { setRules(m_session->rules()); });
    connect(session, &TargetSession::dragCanceled, this, &DiagramView::cancelEditing);
    setRules(session->rules());
}

void TargetView::followTarget()
{
    const auto shown = gamut(ceiechart::GamutRole::Target);
    const auto target = m_session->document()->target();
    if (shown && target && !ceiechart::sameTargets(shown->getTargets(), target->getTargets())) {
        setTarget(*target);
    }
}

void TargetView::followSelection()
{
    if (!isReadOnly()) {
        setSelectedVertex(m_session->selected());
    }
}

} // namespace gamutviewer
