// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/targetsession.h"

#include "display/additivity.h"
#include "display/knowndisplay.h"
#include "display/valuetexts.h"
#include "display/wallassessmenttexts.h"
#include "editing/document.h"

#include <ceiechart/diagram/whitepoint.h>
#include <gamutmodel/nearestinside.h>

#include <QCoreApplication>

#include <algorithm>

namespace gamutviewer {

namespace {

constexpr Vertex primaries[] = {Vertex::Red, Vertex::Green, Vertex::Blue};

} // namespace

TargetSession::TargetSession(Document *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    // Before all others hear of it.
    connect(document, &Document::changed, this, [this] {
        m_assessment.reset();
        keepSelectedCabinet();
    });
    connect(document, &Document::opened, this, [this] { selectCabinet(std::nullopt); });
}

const Assessment &TargetSession::assessment() const
{
    if (!m_assessment) {
        m_assessment = assess(m_document->description(), m_tolerances, false, m_document->measuredCabinet());
    }
    return *m_assessment;
}

void TargetSession::selectCabinet(std::optional<std::size_t> cabinet)
{
    const auto &cabinets = m_document->description().wall.cabinets;
    m_selectedLabel = cabinet && *cabinet < cabinets.size() ? cabinets[*cabinet].label() : QString();
    setSelectedCabinet(cabinet);
}

//! A cabinet that is complete at last comes before those that were measured after it. One that is measured again is
//! not there until it is complete, and is selected then as before.
void TargetSession::keepSelectedCabinet()
{
    if (m_selectedLabel.isEmpty()) {
        return;
    }
    const auto &cabinets = m_document->description().wall.cabinets;
    const auto isSelected = [this](const WallCabinet &cabinet) { return cabinet.label() == m_selectedLabel; };
    if (m_selectedCabinet && *m_selectedCabinet < cabinets.size() && isSelected(cabinets[*m_selectedCabinet])) {
        return;
    }
    const auto found = std::find_if(cabinets.begin(), cabinets.end(), isSelected);
    setSelectedCabinet(
        found == cabinets.end() ? std::nullopt : std::make_optional(std::size_t(found - cabinets.begin())));
}

void TargetSession::setSelectedCabinet(std::optional<std::size_t> cabinet)
{
    if (m_selectedCabinet != cabinet) {
        m_selectedCabinet = cabinet;
        Q_EMIT selectedCabinetChanged();
    }
}

void TargetSession::setHoldWhite(bool hold)
{
    if (holdWhite() != hold) {
        m_rules->setHoldsWhite(hold);
        m_rules->setLocksWhite(hold);
        Q_EMIT rulesChanged();
    }
}

void TargetSession::setLockPrimaries(bool lock)
{
    if (lockPrimaries() != lock) {
        m_rules->setLocksPrimaries(lock);
        Q_EMIT rulesChanged();
    }
}

void TargetSession::setSnaps(bool snap)
{
    if (snaps() != snap) {
        m_rules->setSnaps(snap);
        Q_EMIT rulesChanged();
    }
}

void TargetSession::select(std::optional<Vertex> vertex)
{
    if (m_selected != vertex) {
        m_selected = vertex;
        Q_EMIT selectionChanged();
    }
}

void TargetSession::setTolerances(const std::optional<Tolerances> &tolerances)
{
    m_tolerances = tolerances;
    m_assessment.reset();
    Q_EMIT tolerancesChanged();
}

ceiechart::TargetMove TargetSession::edited(Vertex vertex, const QPointF &xy) const
{
    const auto target = m_document->target();
    if (!target) {
        return {std::nullopt, tr("There is no target to edit.")};
    }
    ceiechart::TargetContext context;
    context.target = target->getTargets();
    if (const auto original = m_document->original()) {
        context.original = original->getTargets();
    }
    return m_rules->move(context, vertex, xy);
}

//! A held white is as bright as the original makes it, in the original's unit; see withPrimaryHoldingWhite().
LuminanceUnit TargetSession::unitAfterMoving(Vertex vertex) const
{
    const auto original = m_document->original();
    const auto target = m_document->target();
    if (holdWhite() && vertex != Vertex::White && original) {
        return original->unit;
    }
    return target ? target->unit : LuminanceUnit::NotKnown;
}

bool TargetSession::apply(
    const std::optional<Model::Targets> &targets, LuminanceUnit unit, const QString &text, int mergeKey)
{
    if (!targets) {
        return false;
    }
    const auto before = m_document->target();
    if (!before || !sameTargets(before->getTargets(), *targets)) {
        m_document->change(withEditedTarget(m_document->description(), *targets, unit), text, mergeKey);
    }
    return true;
}

QString TargetSession::whyNot(Vertex vertex, const QPointF &xy) const
{
    const ceiechart::TargetMove move = edited(vertex, xy);
    return move.targets ? QString() : move.reason;
}

bool TargetSession::setChromaticity(Vertex vertex, const QPointF &xy, int mergeKey)
{
    const ceiechart::TargetMove move = edited(vertex, xy);
    if (apply(move.targets, unitAfterMoving(vertex), tr("move %1").arg(ceiechart::gamutVertexName(vertex)), mergeKey)) {
        return true;
    }
    refuse(move.reason);
    return false;
}

bool TargetSession::setLuminance(Vertex vertex, double luminance, int mergeKey)
{
    const auto target = m_document->target();
    if (target
        && apply(ceiechart::withLuminance(target->getTargets(), vertex, luminance, holdWhite()), target->unit,
            tr("change luminance of %1").arg(ceiechart::gamutVertexName(vertex)), mergeKey)) {
        return true;
    }
    refuse(tr("That luminance is not possible for this target."));
    return false;
}

bool TargetSession::setWhiteTemperature(double kelvin, double duv, int mergeKey)
{
    if (const auto xy = ceiechart::chromaticityAt(kelvin, duv)) {
        return setChromaticity(Vertex::White, *xy, mergeKey);
    }
    refuse(tr("No white point has that colour temperature and Duv."));
    return false;
}

void TargetSession::setLuminanceUnit(LuminanceUnit unit)
{
    const auto target = m_document->target();
    if (!target || target->unit == unit) {
        return;
    }
    const DisplayDescription &description = m_document->description();
    auto brightest = reachableLuminance(description, target->getTargets().white);
    if (description.wall.unit == LuminanceUnit::CandelaPerSquareMetre) {
        const auto wall = assessment().wall;
        const auto ofWall
            = wall && wall->largestWhite ? std::make_optional(wall->largestWhite->luminance) : std::nullopt;
        if (knownDisplays(description).empty()) {
            brightest = ofWall;
        } else if (brightest) {
            brightest = ofWall ? std::make_optional(std::min(*brightest, *ofWall)) : std::nullopt;
        }
    }
    m_document->change(withLuminanceUnit(m_document->description(), unit, brightest), tr("change unit of luminances"));
    if (target->unit == LuminanceUnit::Relative && unit == LuminanceUnit::CandelaPerSquareMetre && !brightest) {
        refuse(tr("What luminance the display reaches is not known. Enter that of the white."));
    }
}

void TargetSession::reset(const QString &gamutName)
{
    if (m_document->description().target != gamutName && m_document->description().gamut(gamutName)) {
        m_document->change(withTargetNamed(m_document->description(), gamutName, m_document->saved()),
            tr("reset to %1").arg(shownGamutName(gamutName)));
    }
}

void TargetSession::fitToDisplay()
{
    const auto target = m_document->target();
    const auto display = exceededDisplay(m_document->description());
    if (!target || !display) {
        return;
    }
    const Model::Targets &limit = display->gamut.getTargets();
    std::optional<Model::Targets> fitted = target->getTargets();
    for (const Vertex primary : primaries) {
        if (!fitted || distanceOutside(target->getTargets(), primary, limit) == 0.0) {
            continue;
        }
        const QPointF from = xyOf(targetAt(*fitted, primary));
        const auto nearest = Model::nearestInside(limit, {from.x(), from.y()}, chromaticityDecimals);
        const QPointF to = nearest ? QPointF(nearest->xy.x, nearest->xy.y)
                                   : ceiechart::nearestInside(limit, from, Model::Diagram::Cie1976);
        const auto original = m_document->original();
        fitted = holdWhite() ? ceiechart::withPrimaryHoldingWhite(
                     *fitted, primary, to, original ? std::make_optional(original->getTargets()) : std::nullopt)
                             : ceiechart::withPrimary(*fitted, primary, to);
    }
    if (!apply(fitted, unitAfterMoving(Vertex::Red), tr("fit to the display"), 0)) {
        refuse(tr("The white would lie outside of the target."));
    }
}

bool TargetSession::offersFitToWall() const
{
    const auto target = m_document->description().gamut(m_document->description().target);
    const auto &wall = assessment().wall;
    return target && wall && (wall->judgement == Judgement::Fail || fittedToWall(*target, *wall));
}

void TargetSession::fitToWall()
{
    const auto target = m_document->description().gamut(m_document->description().target);
    const auto wall = assessment().wall;
    if (!target || !wall) {
        refuse(target ? tr("There is no wall to fit the target to.") : tr("There is no target to fit."));
        return;
    }
    if (const auto fitted = fittedToWall(*target, *wall)) {
        apply(fitted, target->unit, tr("fit to the wall"), 0);
        return;
    }
    const QString problem = fitProblem(m_document->description().wall, *wall);
    refuse(problem.isEmpty() ? tr("The target fits the wall as far as is known.") : problem);
}

void TargetSession::setLeftOut(const std::vector<std::size_t> &cabinets, bool isLeftOut)
{
    DisplayDescription description = m_document->description();
    bool isAnother = false;
    for (const std::size_t cabinet : cabinets) {
        if (cabinet >= description.wall.cabinets.size()) {
            continue; // of a wall that has been there before
        }
        WallCabinet &of = description.wall.cabinets[cabinet];
        isAnother = isAnother || of.isLeftOut != isLeftOut;
        of.isLeftOut = isLeftOut;
    }
    if (isAnother) {
        m_document->change(description, isLeftOut ? tr("leave out cabinets") : tr("count cabinets again"));
    }
}

void TargetSession::removeWall()
{
    if (m_document->description().wall.cabinets.empty()) {
        return;
    }
    DisplayDescription description = m_document->description();
    description.wall = DisplayWall();
    selectCabinet(std::nullopt);
    m_document->change(description, tr("remove the wall"));
}

void TargetSession::pointOut(Vertex vertex)
{
    select(vertex);
    Q_EMIT pointedOut(vertex);
}

void TargetSession::beginDrag(Vertex vertex)
{
    m_dragged = vertex;
    m_document->breakMerging();
    m_document->beginDrag();
}

void TargetSession::dragTo(const Model::Targets &targets)
{
    const auto before = m_document->target();
    if (m_document->isDragging() && before && !sameTargets(before->getTargets(), targets)) {
        m_document->drag(withEditedTarget(m_document->description(), targets, unitAfterMoving(m_dragged)));
    }
}

void TargetSession::endDrag()
{
    m_document->endDrag(tr("move %1").arg(ceiechart::gamutVertexName(m_dragged)));
}

void TargetSession::cancelDrag()
{
    if (m_document->isDragging()) {
        m_document->cancelDrag();
        Q_EMIT dragCanceled();
    }
}

QString shownGamutName(const QString &gamutName)
{
    if (!isEditedName(gamutName)) {
        return gamutName;
    }
    const int number = editNumber(gamutName);
    return number < 2 ? QCoreApplication::translate("gamutviewer", "%1 (edited)").arg(plainName(gamutName))
                      : QCoreApplication::translate("gamutviewer", "%1 (edited %2)")
                            .arg(plainName(gamutName), QString::number(number));
}

} // namespace gamutviewer
