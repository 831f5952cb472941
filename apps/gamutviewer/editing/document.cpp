// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "editing/document.h"

#include "editing/gamutroles.h"
#include "editing/openedfiles.h"
#include "editing/targetedits.h"

#include <ceiechart/diagram/targetrules.h>

#include <QSet>
#include <QUndoCommand>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace gamutviewer {

namespace {

constexpr int trailLength = 12;
constexpr int mergeable = 1;

bool samePoints(const QVector<NamedPoint> &a, const QVector<NamedPoint> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const NamedPoint &one, const NamedPoint &other) {
        return one.name == other.name && one.xy.x() == other.xy.x() && one.xy.y() == other.xy.y();
    });
}

//! But for whether they are left out.
bool sameCabinets(const WallCabinet &a, const WallCabinet &b)
{
    const auto colors = [](const WallCabinet &of) {
        return Model::Targets{of.red, of.green, of.blue, of.white.value_or(Model::Target())};
    };
    return a.name == b.name && a.row == b.row && a.column == b.column && a.white.has_value() == b.white.has_value()
        && ceiechart::sameTargets(colors(a), colors(b)) && sameBlacks(a.black, b.black)
        && a.blackLuminance == b.blackLuminance;
}

//! But for the cabinets that are left out.
bool sameWalls(const DisplayWall &a, const DisplayWall &b)
{
    const auto sameIncomplete = [](const IncompleteCabinet &one, const IncompleteCabinet &other) {
        return incompleteLabel(one) == incompleteLabel(other) && one.reason == other.reason;
    };
    return a.unit == b.unit
        && std::equal(a.cabinets.begin(), a.cabinets.end(), b.cabinets.begin(), b.cabinets.end(), sameCabinets)
        && std::equal(
            a.incomplete.begin(), a.incomplete.end(), b.incomplete.begin(), b.incomplete.end(), sameIncomplete);
}

//! The labels of the cabinets that \a wall is judged without.
QSet<QString> leftOutOf(const DisplayWall &wall)
{
    QSet<QString> labels;
    for (const WallCabinet &cabinet : wall.cabinets) {
        if (cabinet.isLeftOut) {
            labels.insert(cabinet.label());
        }
    }
    return labels;
}

DisplayWall withLeftOut(DisplayWall wall, const QSet<QString> &labels)
{
    for (WallCabinet &cabinet : wall.cabinets) {
        cabinet.isLeftOut = !labels.isEmpty() && labels.contains(cabinet.label());
    }
    return wall;
}

bool playsAnyRole(const DisplayDescription &description, const QString &gamutName)
{
    return std::any_of(std::begin(allGamutRoles), std::end(allGamutRoles),
        [&](GamutRole role) { return playsRole(description, gamutName, role); });
}

//! Whether \a measurement has primaries, or cabinets, that make no gamut yet.
bool awaitsGamut(const FollowedMeasurement &measurement)
{
    const auto &measured = measurement.file.measurements.measurements;
    const bool hasColor = std::any_of(measured.begin(), measured.end(), [](const Measurement &color) {
        return color.part == MeasurementPart::Red || color.part == MeasurementPart::Green
            || color.part == MeasurementPart::Blue;
    });
    return (hasColor || measurement.isOfCabinets) && !measurement.wall && !usualRole(measurement.file);
}

} // namespace

class Document::Step : public QUndoCommand {
public:
    Step(Document *document, const DisplayDescription &before, const DisplayDescription &after, const QString &text,
        int mergeKey)
        : QUndoCommand(text)
        , m_document(document)
        , m_before(before)
        , m_after(after)
        , m_trailBefore(document->m_whiteTrail)
        , m_trailAfter(document->trailWith(after))
        , m_mergeKey(mergeKey)
        , m_mergeRun(document->m_mergeRun)
    {
    }

    void undo() override { m_document->show(m_before, m_trailBefore); }
    void redo() override { m_document->show(m_after, m_trailAfter); }
    int id() const override { return m_mergeKey == 0 ? -1 : mergeable; }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *next = static_cast<const Step *>(other);
        if (next->m_mergeKey != m_mergeKey || next->m_mergeRun != m_mergeRun) {
            return false;
        }
        m_after = next->m_after;
        m_trailAfter = m_trailBefore;
        if (!next->m_trailAfter.isEmpty()) {
            m_trailAfter.append(next->m_trailAfter.last());
        }
        return true;
    }

private:
    Document *m_document;
    DisplayDescription m_before;
    DisplayDescription m_after;
    QVector<QPointF> m_trailBefore;
    QVector<QPointF> m_trailAfter;
    int m_mergeKey;
    int m_mergeRun;
};

Document::Document(QObject *parent)
    : QObject(parent)
{
    connect(&m_history, &QUndoStack::cleanChanged, this, [this](bool clean) { Q_EMIT modifiedChanged(!clean); });
}

std::optional<DisplayGamut> Document::target() const
{
    return targetToEdit(m_description);
}

void Document::open(const DisplayDescription &description, const QString &fileName)
{
    m_dragging = false;
    m_history.clear();
    m_fileName = fileName;
    m_saved = description;
    m_whiteTrail.clear();
    show(description, trailWith(description));
    Q_EMIT fileNameChanged();
    Q_EMIT opened();
}

void Document::markSaved(const QString &fileName)
{
    m_fileName = fileName;
    m_saved = m_own;
    breakMerging();
    m_history.setClean();
    Q_EMIT fileNameChanged();
}

void Document::change(const DisplayDescription &description, const QString &text, int mergeKey)
{
    if (m_dragging) {
        cancelDrag();
    }
    const DisplayDescription own = withoutFollowed(description);
    if (m_followed && descriptionText(own) == descriptionText(m_own)) {
        return;
    }
    m_history.push(new Step(this, m_own, own, text, mergeKey));
}

void Document::beginDrag()
{
    m_dragging = true;
    m_beforeDrag = m_own;
}

void Document::drag(const DisplayDescription &description)
{
    if (m_dragging) {
        show(withoutFollowed(description));
    }
}

void Document::endDrag(const QString &text)
{
    if (!m_dragging) {
        return;
    }
    m_dragging = false;
    const auto before = targetToEdit(m_beforeDrag);
    const auto after = targetToEdit(m_own);
    if (m_beforeDrag.target == m_own.target
        && (!before || !after || sameTargets(before->getTargets(), after->getTargets()))) {
        return;
    }
    const DisplayDescription dragged = m_own;
    m_history.push(new Step(this, m_beforeDrag, dragged, text, 0));
}

void Document::cancelDrag()
{
    if (m_dragging) {
        m_dragging = false;
        show(m_beforeDrag);
    }
}

void Document::showFollowed(
    const std::optional<FollowedMeasurement> &measurement, const std::function<FollowedMeasurement()> &toKeep)
{
    std::optional<FollowedMeasurement> followed = measurement;
    std::function<FollowedMeasurement()> keeps = measurement ? toKeep : nullptr;
    DisplayDescription description = shownWith(m_own, followed);
    const auto exchange = [&] {
        std::swap(m_followed, followed);
        std::swap(m_toKeep, keeps);
        std::swap(m_description, description);
    };
    exchange();
    try {
        tellChanged();
    } catch (const std::bad_alloc &) {
        exchange();
        tellChanged();
        throw;
    }
}

QString Document::measuredCabinet() const
{
    return m_followed && usualRole(m_followed->file) == GamutRole::Measured ? m_followed->cabinet : QString();
}

DisplayDescription Document::withHidden() const
{
    DisplayDescription result = m_description;
    if (awaitsWall()) {
        result.wall = m_own.wall;
    }
    if (m_followed && awaitsGamut(*m_followed)) {
        result.measured = m_own.measured;
    }
    return result;
}

bool Document::hasUnkept() const
{
    return m_followed && descriptionText(withMeasurement(m_own, toKeep())) != descriptionText(m_own);
}

void Document::keepFollowed(const QString &text)
{
    if (m_dragging) {
        cancelDrag();
    }
    const DisplayDescription kept = m_followed ? withMeasurement(m_own, toKeep()) : m_own;
    if (descriptionText(kept) == descriptionText(m_own)) {
        return;
    }
    DisplayDescription own = m_own;
    DisplayDescription description = m_description;
    QVector<QPointF> trail = m_whiteTrail;
    auto step = std::make_unique<Step>(this, m_own, kept, text, 0);
    try {
        m_history.push(step.get());
        step.release();
    } catch (const std::bad_alloc &) {
        m_isHalfShown = true;
        // The history does a step first, then takes it, then tells of it.
        if (m_history.count() > 0 && m_history.command(m_history.count() - 1) == step.get()) {
            step.release();
            showAgain();
            return;
        }
        std::swap(m_own, own);
        std::swap(m_description, description);
        std::swap(m_whiteTrail, trail);
        showAgain();
        throw;
    }
}

void Document::showAgain()
{
    if (m_isHalfShown) {
        Q_EMIT modifiedChanged(isModified());
        tellChanged();
    }
}

void Document::tellChanged()
{
    ++m_version;
    tellDragged();
}

void Document::tellDragged()
{
    m_isHalfShown = true;
    Q_EMIT changed();
    m_isHalfShown = false;
}

//! \a own with what \a measurement adds to it, if there is any.
DisplayDescription Document::withMeasurement(
    const DisplayDescription &own, const std::optional<FollowedMeasurement> &measurement)
{
    if (!measurement) {
        return own;
    }
    DisplayDescription result = withFile(own, measurement->file, usualRole(measurement->file));
    if (measurement->wall) {
        result.wall = withLeftOut(*measurement->wall, leftOutOf(own.wall));
    }
    return result;
}

//! \a own as it is shown while \a measurement is followed.
DisplayDescription Document::shownWith(
    const DisplayDescription &own, const std::optional<FollowedMeasurement> &measurement)
{
    DisplayDescription result = withMeasurement(own, measurement);
    // Verdicts on what was measured before would not be on what is measured.
    if (measurement && measurement->isOfCabinets && !measurement->wall) {
        result.wall = DisplayWall();
    }
    if (measurement && awaitsGamut(*measurement)) {
        result.measured.clear();
    }
    return result;
}

//! \a edited, which was made from what is shown, without what is shown of the followed measurement.
DisplayDescription Document::withoutFollowed(const DisplayDescription &edited) const
{
    DisplayDescription own = edited;
    if (!m_followed) {
        return own;
    }
    const QString name = m_description.measured;
    const bool hasGamut = usualRole(m_followed->file).has_value();
    if ((hasGamut || awaitsGamut(*m_followed)) && (own.measured == name || own.measured.isEmpty())) {
        own.measured = nameIn(own, m_own.measured);
    }
    if (hasGamut) {
        if (!hasOwnGamut(m_own, name) && !playsAnyRole(own, name)) {
            own.gamuts.erase(std::remove_if(own.gamuts.begin(), own.gamuts.end(),
                                 [followed = name.toStdString()](
                                     const DisplayGamut &gamut) { return gamut.colorGamutName() == followed; }),
                own.gamuts.end());
        }
    }
    if (samePoints(own.measurePoints, m_description.measurePoints)) {
        own.measurePoints = m_own.measurePoints;
    }
    if (m_followed->wall || m_followed->isOfCabinets) {
        own.wall = wallWithoutFollowed(own.wall);
    }
    return own;
}

//! What the gamut \a name of what is shown is called in \a edited; empty when it is gone.
QString Document::nameIn(const DisplayDescription &edited, const QString &name) const
{
    if (name.isEmpty() || edited.gamut(name)) {
        return name;
    }
    const auto &shown = m_description.gamuts;
    const auto there = std::find_if(shown.begin(), shown.end(),
        [wanted = name.toStdString()](const DisplayGamut &gamut) { return gamut.colorGamutName() == wanted; });
    const bool isRenamed = there != shown.end() && shown.size() == edited.gamuts.size();
    return isRenamed ? nameOf(edited.gamuts[std::size_t(there - shown.begin())]) : QString();
}

DisplayWall Document::wallWithoutFollowed(const DisplayWall &edited) const
{
    const DisplayWall &shown = m_description.wall;
    if (edited.cabinets.empty()) {
        return m_own.wall; // it is shown again at once
    }
    if (!sameWalls(edited, shown)) {
        return edited; // another wall
    }
    const QSet<QString> leftOut = leftOutOf(edited);
    const QSet<QString> before = leftOutOf(shown);
    if (leftOut == before) {
        return m_own.wall;
    }
    const auto kept = toKeep();
    // Also those that are not shown, as they are being measured.
    return withLeftOut(kept->wall ? *kept->wall : shown, leftOutOf(m_own.wall) - before + leftOut);
}

void Document::show(const DisplayDescription &own)
{
    // All of it is there before anything changes: memory can be short.
    DisplayDescription shown = shownWith(own, m_followed);
    DisplayDescription kept = own;
    m_own = std::move(kept);
    m_description = std::move(shown);
    Q_EMIT edited();
    if (m_dragging) {
        tellDragged();
    } else {
        tellChanged();
    }
}

void Document::show(const DisplayDescription &own, const QVector<QPointF> &trail)
{
    m_whiteTrail = trail;
    show(own);
}

QVector<QPointF> Document::trailWith(const DisplayDescription &description) const
{
    QVector<QPointF> trail = m_whiteTrail;
    if (const auto gamut = targetToEdit(description)) {
        const QPointF white = xyOf(gamut->getTargets().white);
        if (trail.isEmpty() || trail.last().x() != white.x() || trail.last().y() != white.y()) {
            trail.append(white);
        }
    }
    return trail.size() > trailLength ? trail.mid(trail.size() - trailLength) : trail;
}

} // namespace gamutviewer
