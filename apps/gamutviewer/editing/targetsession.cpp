// SPDX-License-Identifier: MIT
#include "editing/targetsession.h"

#include "display/chromaticity.h"
#include "display/gamutfromprimaries.h"
#include "display/whitepoint.h"
#include "editing/document.h"

#include <QCoreApplication>

namespace gamutviewer {

TargetSession::TargetSession(Document *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
}

bool TargetSession::isMovable(Vertex vertex) const
{
    return vertex == Vertex::White ? !m_holdWhite : !m_lockPrimaries;
}

void TargetSession::setHoldWhite(bool hold)
{
    if (m_holdWhite != hold) {
        m_holdWhite = hold;
        Q_EMIT rulesChanged();
    }
}

void TargetSession::setLockPrimaries(bool lock)
{
    if (m_lockPrimaries != lock) {
        m_lockPrimaries = lock;
        Q_EMIT rulesChanged();
    }
}

void TargetSession::setSnaps(bool snap)
{
    if (m_snaps != snap) {
        m_snaps = snap;
        Q_EMIT rulesChanged();
    }
}

void TargetSession::select(Vertex vertex)
{
    if (m_selected != vertex) {
        m_selected = vertex;
        Q_EMIT selectionChanged();
    }
}

std::optional<Model::Targets> TargetSession::edited(Vertex vertex, const QPointF &xy) const
{
    const auto target = m_document->target();
    if (!target || !isMovable(vertex)) {
        return std::nullopt;
    }
    if (vertex == Vertex::White) {
        return withWhite(target->getTargets(), xy);
    }
    const auto original = m_document->original();
    return withPrimary(
        target->getTargets(), vertex, xy, m_holdWhite, original ? original->getTargets() : target->getTargets());
}

bool TargetSession::apply(const std::optional<Model::Targets> &targets, const QString &text, int mergeKey)
{
    if (!targets) {
        return false;
    }
    const auto before = m_document->target();
    if (!before || !sameTargets(before->getTargets(), *targets)) {
        m_document->change(withEditedTarget(m_document->description(), *targets), text, mergeKey);
    }
    return true;
}

QString TargetSession::whyNot(Vertex vertex, const QPointF &xy) const
{
    const auto target = m_document->target();
    if (!target) {
        return tr("There is no target to edit.");
    }
    if (!isMovable(vertex)) {
        return vertex == Vertex::White ? tr("The white point is held.") : tr("The primaries are locked.");
    }
    if (!isChromaticity(xy)) {
        return tr("Not a valid chromaticity: x must be at least 0, y greater than 0 and x + y at most 1.");
    }
    if (edited(vertex, xy)) {
        return QString();
    }
    Model::Targets moved = target->getTargets();
    targetAt(moved, vertex) = Model::Target::fromYxy(1.0, xy.x(), xy.y());
    return spanTriangle(moved) ? tr("The white point would lie outside the target.")
                               : tr("The primaries would not form a triangle.");
}

bool TargetSession::setChromaticity(Vertex vertex, const QPointF &xy, int mergeKey)
{
    if (apply(edited(vertex, xy), tr("move %1").arg(vertexName(vertex)), mergeKey)) {
        return true;
    }
    refuse(whyNot(vertex, xy));
    return false;
}

bool TargetSession::setLuminance(Vertex vertex, double luminance, int mergeKey)
{
    const auto target = m_document->target();
    if (target
        && apply(withLuminance(target->getTargets(), vertex, luminance, m_holdWhite),
            tr("change luminance of %1").arg(vertexName(vertex)), mergeKey)) {
        return true;
    }
    refuse(tr("That luminance is not possible for this target."));
    return false;
}

bool TargetSession::setWhiteTemperature(double kelvin, double duv, int mergeKey)
{
    if (const auto xy = chromaticityAt(kelvin, duv)) {
        return setChromaticity(Vertex::White, *xy, mergeKey);
    }
    refuse(tr("No white point has that colour temperature and Duv."));
    return false;
}

void TargetSession::reset(const QString &gamutName)
{
    if (m_document->description().target != gamutName && m_document->description().gamut(gamutName)) {
        m_document->change(withTargetNamed(m_document->description(), gamutName, m_document->saved()),
            tr("reset to %1").arg(shownGamutName(gamutName)));
    }
}

void TargetSession::beginDrag()
{
    m_document->beginDrag();
}

bool TargetSession::dragTo(Vertex vertex, const QPointF &xy, double reach)
{
    select(vertex);
    m_dragged = vertex;
    const auto snapped
        = m_snaps ? nearest(xy, snapPoints(m_document->description(), vertex), reach) : std::optional<QPointF>();
    const QPointF position = snapped ? *snapped : roundedXy(xy);
    const auto targets = edited(vertex, position);
    if (!targets) {
        refuse(whyNot(vertex, position));
        return false;
    }
    const auto before = m_document->target();
    if (!sameTargets(before->getTargets(), *targets)) {
        m_document->drag(withEditedTarget(m_document->description(), *targets));
    }
    return true;
}

void TargetSession::endDrag()
{
    m_document->endDrag(tr("move %1").arg(vertexName(m_dragged)));
}

void TargetSession::cancelDrag()
{
    m_document->cancelDrag();
}

QString vertexName(Vertex vertex)
{
    switch (vertex) {
    case Vertex::Red:
        return QCoreApplication::translate("gamutviewer", "red");
    case Vertex::Green:
        return QCoreApplication::translate("gamutviewer", "green");
    case Vertex::Blue:
        return QCoreApplication::translate("gamutviewer", "blue");
    case Vertex::White:
        break;
    }
    return QCoreApplication::translate("gamutviewer", "white");
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
