// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/targetview.h"

#include "display/assessmenttexts.h"
#include "display/valuetexts.h"
#include "display/wallassessment.h"
#include "display/wallassessmenttexts.h"
#include "editing/document.h"
#include "editing/targetsession.h"

namespace gamutviewer {

namespace {

/*!
 * \brief What the cabinets of the wall say of the target's colour \a vertex: which of those that count it lies outside
 * of by the most, and of how many; empty where it lies outside of none.
 */
QString wallNote(const DisplayWall &wall, const WallAssessment &assessment, Vertex vertex)
{
    const auto distance
        = [&](std::size_t cabinet) { return assessment.cabinets[cabinet].outside[std::size_t(vertex)]; };
    std::optional<std::size_t> worst;
    int count = 0;
    for (std::size_t i = 0; i < assessment.cabinets.size(); ++i) {
        if (!assessment.cabinets[i].isLeftOut && distance(i) > 0.0) {
            ++count;
            worst = !worst || distance(i) > distance(*worst) ? i : *worst;
        }
    }
    if (!worst) {
        return QString();
    }
    const QString name = cabinetName(wall, *worst);
    return count == 1
        ? TargetView::tr("outside of the cabinet %1 by Δu′v′ %2").arg(name, distanceText(distance(*worst)))
        : TargetView::tr("outside of %1 cabinets, of %2 by Δu′v′ %3", "how many, the farthest, and how far")
              .arg(QString::number(count), name, distanceText(distance(*worst)));
}

} // namespace

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

void TargetView::noteOutside()
{
    const auto selected = session()->selected();
    const DisplayDescription &description = session()->document()->description();
    const auto &wall = session()->assessment().wall;
    const QString ofWall = selected && wall ? wallNote(description.wall, *wall, *selected) : QString();
    if (!ofWall.isEmpty()) {
        setEditNote(ofWall);
        return;
    }
    auto outside
        = selected && *selected != ceiechart::GamutVertex::White ? outsideOf(description, *selected) : std::nullopt;
    if (outside) {
        outside->display.isOfCabinet
            = outside->display.isMeasured && !session()->document()->measuredCabinet().isEmpty();
    }
    setEditNote(outside ? tr("outside of the %1 by Δu′v′ %2", "gamut and distance")
                              .arg(displayName(outside->display), distanceText(outside->distance))
                        : QString());
}

void TargetView::followSelection()
{
    if (!isReadOnly()) {
        setSelectedVertex(m_session->selected());
    }
}

} // namespace gamutviewer
