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
    : TargetView(session, parent)
    , m_switches(switches)
{
    // What came with the drag, such as the name of an edited target, is shown from then on.
    connect(this, &DiagramView::editingFinished, this, &DocumentView::refresh);
    connect(session, &TargetSession::tolerancesChanged, this, &DocumentView::refresh);
}

void DocumentView::note()
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

QVector<ceiechart::DiagramRings> DocumentView::rings() const
{
    const Document *document = session()->document();
    const auto target = document->target();
    if (!target) {
        return {};
    }
    // A default is not judged.
    return targetRings(target->getTargets(), document->targetIsDefault() ? std::nullopt : session()->tolerances());
}

void DocumentView::refresh()
{
    const Document *document = session()->document();
    note();
    if (isEditing()) {
        followTarget();
        setRings(rings());
        return;
    }
    ceiechart::DiagramContent content = m_switches->content(document->description());
    if (content.find(ceiechart::GamutRole::Target)) {
        content.rings = rings();
        content.trail = document->whiteTrail();
    }
    setContent(content);
    followSelection();
}

} // namespace gamutviewer
