// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "drawing/documentview.h"

#include "display/assessmenttexts.h"
#include "display/valuetexts.h"
#include "display/wallassessment.h"
#include "display/wallassessmenttexts.h"
#include "drawing/documentcontent.h"
#include "drawing/layerswitches.h"
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
        ? DocumentView::tr("outside of the cabinet %1 by Δu′v′ %2").arg(name, distanceText(distance(*worst)))
        : DocumentView::tr("outside of %1 cabinets, of %2 by Δu′v′ %3", "how many, the farthest, and how far")
              .arg(QString::number(count), name, distanceText(distance(*worst)));
}

} // namespace

DocumentView::DocumentView(TargetSession *session, const LayerSwitches *switches, QWidget *parent)
    : DiagramView(parent)
    , m_session(session)
    , m_switches(switches)
{
    setReadoutShown(false); // the window has it for all views
    connect(this, &DiagramView::editingStarted, this,
        [this] { m_session->beginDrag(selectedVertex().value_or(m_session->selected().value_or(Vertex::Red))); });
    connect(this, &DiagramView::targetEdited, this,
        [this](const Model::ColorGamut &gamut) { m_session->dragTo(gamut.getTargets()); });
    connect(this, &DiagramView::editingCanceled, m_session, &TargetSession::cancelDrag);
    connect(this, &DiagramView::editingFinished, m_session, &TargetSession::endDrag);
    // What came with the drag, such as the name of an edited target, is shown from then on.
    connect(this, &DiagramView::editingFinished, this, &DocumentView::refresh);
    connect(this, &DiagramView::editRefused, m_session, &TargetSession::refuse);
    connect(this, &DiagramView::selectedVertexChanged, this, [this] {
        // Without handles none can be selected here, which says nothing of the others.
        const ceiechart::DiagramGamut *target = content().find(ceiechart::GamutRole::Target);
        if (selectedVertex() || (!isReadOnly() && target && content().shows(*target))) {
            m_session->select(selectedVertex());
        }
    });
    connect(session, &TargetSession::selectionChanged, this, [this] {
        if (!isReadOnly()) {
            setSelectedVertex(m_session->selected());
        }
    });
    connect(session, &TargetSession::tolerancesChanged, this, &DocumentView::refresh);
    connect(session, &TargetSession::rulesChanged, this, &DocumentView::applyRules);
    connect(session, &TargetSession::dragCanceled, this, &DiagramView::cancelEditing);
    applyRules();
}

void DocumentView::applyRules()
{
    setRules(m_session->rules());
}

void DocumentView::note()
{
    const auto selected = m_session->selected();
    const DisplayDescription &description = m_session->document()->description();
    const auto &wall = m_session->assessment().wall;
    const QString ofWall = selected && wall ? wallNote(description.wall, *wall, *selected) : QString();
    if (!ofWall.isEmpty()) {
        setEditNote(ofWall);
        return;
    }
    const auto outside
        = selected && *selected != ceiechart::GamutVertex::White ? outsideOf(description, *selected) : std::nullopt;
    setEditNote(outside ? tr("outside of the %1 by Δu′v′ %2", "gamut and distance")
                              .arg(displayName(outside->display), distanceText(outside->distance))
                        : QString());
}

QVector<ceiechart::DiagramRings> DocumentView::rings() const
{
    const Document *document = m_session->document();
    const auto target = document->target();
    if (!target) {
        return {};
    }
    // A default is not judged.
    return targetRings(target->getTargets(), document->targetIsDefault() ? std::nullopt : m_session->tolerances());
}

void DocumentView::refresh()
{
    const Document *document = m_session->document();
    note();
    if (isEditing()) {
        const auto shown = gamut(ceiechart::GamutRole::Target);
        const auto target = document->target();
        if (shown && target && !ceiechart::sameTargets(shown->getTargets(), target->getTargets())) {
            setTarget(*target);
        }
        setRings(rings());
        return;
    }
    ceiechart::DiagramContent content = m_switches->content(document->description());
    if (content.find(ceiechart::GamutRole::Target)) {
        content.rings = rings();
        content.trail = document->whiteTrail();
    }
    setContent(content);
    if (!isReadOnly()) {
        setSelectedVertex(m_session->selected());
    }
}

} // namespace gamutviewer
