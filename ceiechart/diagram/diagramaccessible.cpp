// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/diagramview_p.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

#include <algorithm>
#include <array>
#include <cmath>

namespace ceiechart {

namespace {

constexpr int verticesBegin = 1000000; // keys of parts: gamuts by their index, then the handles, then their coordinates
constexpr int coordinatesBegin = verticesBegin + 10;

bool showsHandles(const DiagramView &view)
{
    const DiagramGamut *target = view.content().find(GamutRole::Target);
    return target && !view.isReadOnly() && view.content().shows(*target);
}

QVector<int> shownGamuts(const DiagramView &view)
{
    QVector<int> indices;
    for (int i = 0; i < view.gamuts().size(); ++i) {
        if (view.content().shows(view.gamuts()[i])) {
            indices.append(i);
        }
    }
    return indices;
}

QPointF xyOfVertex(const DiagramView &view, GamutVertex vertex)
{
    const auto target = view.gamut(GamutRole::Target);
    return target ? xyOf(targetAt(target->getTargets(), vertex)) : QPointF();
}

QPointF inDiagram(const DiagramView &view, const QPointF &xy)
{
    const Model::DiagramPoint point = Model::toDiagram(view.diagram(), {xy.x(), xy.y()});
    return QPointF(point.x, point.y);
}

//! Whether a user could do with the view what an action of an accessibility client does.
bool isUsable(const DiagramView &view)
{
    return view.isEnabled() && view.isVisible();
}

void moveTo(DiagramView &view, GamutVertex vertex, const QPointF &point)
{
    if (!isUsable(view)) {
        return;
    }
    const Model::DiagramPoint xy = Model::fromDiagram(view.diagram(), {point.x(), point.y()});
    view.moveVertex(vertex, QPointF(xy.x, xy.y));
}

QRect onScreen(const DiagramView &view, const QRectF &place)
{
    const QRect local = place.toAlignedRect().intersected(view.rect());
    return local.isEmpty() ? QRect() : QRect(view.mapToGlobal(local.topLeft()), local.size());
}

class DiagramAccessible;

//! A part of the view that is no widget.
class Part : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    explicit Part(DiagramView *view)
        : m_view(view)
    {
    }

    QObject *object() const override { return nullptr; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view.data()); }
    void setText(QAccessible::Text, const QString &) override { }
    QWindow *window() const override
    {
        const QAccessibleInterface *view = parent();
        return view ? view->window() : nullptr;
    }

    QStringList actionNames() const override { return {}; }
    void doAction(const QString &) override { }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

protected:
    DiagramView &view() const { return *m_view; }
    bool hasView() const { return !m_view.isNull(); }
    void *interfaceOfActions() { return static_cast<QAccessibleActionInterface *>(this); }

private:
    QPointer<DiagramView> m_view;
};

class GamutPart : public Part {
public:
    GamutPart(DiagramView *view, int index)
        : Part(view)
        , m_index(index)
    {
    }

    bool isValid() const override { return hasView() && m_index < view().gamuts().size(); }
    QAccessible::Role role() const override { return QAccessible::Graphic; }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) {
            return QString();
        }
        const DiagramGamut &gamut = view().gamuts()[m_index];
        if (kind == QAccessible::Name) {
            return DiagramView::tr("%1, %2", "name of a gamut, and its role")
                .arg(QString::fromStdString(gamut.gamut.colorGamutName()), gamutRoleName(gamut.role));
        }
        if (kind != QAccessible::Description && kind != QAccessible::Value) {
            return QString();
        }
        QStringList parts;
        for (const GamutVertex vertex : allGamutVertices) {
            const QPointF xy = xyOf(targetAt(gamut.gamut.getTargets(), vertex));
            parts.append(DiagramView::tr("%1: %2", "primary or white, and its coordinates")
                             .arg(gamutVertexName(vertex), view().coordinatesText(xy)));
        }
        return parts.join(QStringLiteral("; "));
    }

    QRect rect() const override
    {
        return isValid()
            ? onScreen(view(), view().viewport().outline(view().gamuts()[m_index].gamut.getTargets()).boundingRect())
            : QRect();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !isValid() || !view().isVisible();
        state.offscreen = rect().isEmpty();
        return state;
    }

private:
    const int m_index;
};

//! What a handle and each of its two coordinates have in common: one coordinate is the value of both.
class ValuePart : public Part, public QAccessibleValueInterface {
public:
    ValuePart(DiagramView *view, GamutVertex vertex, bool isFirst)
        : Part(view)
        , m_vertex(vertex)
        , m_isFirst(isFirst)
    {
    }

    bool isValid() const override { return hasView() && showsHandles(view()); }
    QAccessible::Role role() const override { return QAccessible::Slider; }

    QRect rect() const override
    {
        if (!isValid()) {
            return QRect();
        }
        DiagramOverlay::Handle handle;
        handle.at = view().viewport().toPosition(xyOfVertex(view(), m_vertex));
        return onScreen(view(), DiagramOverlay::bounds(handle));
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invisible = true;
            return state;
        }
        const bool isMovable = view().rules()->isMovable(m_vertex);
        state.focusable = true;
        state.selectable = true;
        state.selected = view().selectedVertex() == m_vertex;
        state.focused = state.selected && view().hasFocus();
        state.movable = isMovable;
        state.readOnly = !isMovable;
        state.disabled = !view().isEnabled();
        state.invisible = !view().isVisible();
        state.offscreen = rect().isEmpty();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface) {
            return static_cast<QAccessibleValueInterface *>(this);
        }
        return type == QAccessible::ActionInterface ? interfaceOfActions() : nullptr;
    }

    QVariant currentValue() const override { return isValid() ? value(point()) : 0.0; }
    void setCurrentValue(const QVariant &wanted) override
    {
        bool isNumber = false;
        const double number = wanted.toDouble(&isNumber);
        if (isValid() && isNumber && std::isfinite(number)) {
            QPointF moved = point();
            (m_isFirst ? moved.rx() : moved.ry()) = number;
            moveTo(view(), m_vertex, moved);
        }
    }
    QVariant maximumValue() const override { return 1.0; }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return isValid() ? keyStepFor(view().viewport().scale()) : 0.0; }

    QStringList actionNames() const override { return {setFocusAction(), increaseAction(), decreaseAction()}; }

    void doAction(const QString &name) override
    {
        if (!isValid()) {
            return;
        }
        const double step = minimumStepSize().toDouble();
        if (name == increaseAction() || name == decreaseAction()) {
            setCurrentValue(currentValue().toDouble() + (name == increaseAction() ? step : -step));
        } else if (name == setFocusAction() || name == pressAction()) {
            if (isUsable(view())) {
                view().setSelectedVertex(m_vertex);
            }
            if (isValid() && isUsable(view())) {
                view().setFocus(Qt::OtherFocusReason);
            }
        }
    }

protected:
    GamutVertex vertex() const { return m_vertex; }
    bool isFirst() const { return m_isFirst; }
    QPointF point() const { return inDiagram(view(), xyOfVertex(view(), m_vertex)); }
    double value(const QPointF &point) const { return m_isFirst ? point.x() : point.y(); }

private:
    const GamutVertex m_vertex;
    const bool m_isFirst;
};

QString handleName(GamutVertex vertex)
{
    return vertex == GamutVertex::White ? DiagramView::tr("Target: white point")
                                        : DiagramView::tr("Target: %1 primary").arg(gamutVertexName(vertex));
}

class CoordinatePart : public ValuePart {
public:
    using ValuePart::ValuePart;

    QAccessibleInterface *parent() const override;

    QAccessible::State state() const override
    {
        QAccessible::State state = ValuePart::state();
        state.focused = false; // the handle is
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) {
            return QString();
        }
        const Model::DiagramTraits &traits = Model::diagramTraits(view().diagram());
        if (kind == QAccessible::Name) {
            return DiagramView::tr("%1, %2", "primary or white, and the name of one of its coordinates")
                .arg(handleName(vertex()), QString::fromUtf8(isFirst() ? traits.xName : traits.yName));
        }
        return kind == QAccessible::Value ? coordinateText(value(point()), view().shownDigits()) : QString();
    }
};

class HandlePart : public ValuePart {
public:
    HandlePart(DiagramView *view, GamutVertex vertex)
        : ValuePart(view, vertex, true)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) {
            return QString();
        }
        switch (kind) {
        case QAccessible::Name:
            return handleName(vertex());
        case QAccessible::Value:
        case QAccessible::Description:
            return view().coordinatesText(xyOfVertex(view(), vertex()));
        case QAccessible::Help:
            return DiagramView::tr("Arrow keys move it; with Shift, a tenth as far.");
        default:
            return QString();
        }
    }

    int childCount() const override { return isValid() ? 2 : 0; }
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int i = 0; i < childCount(); ++i) {
            if (this->child(i) == child) {
                return i;
            }
        }
        return -1;
    }

    // A handle has two coordinates: the usual actions are those of the first, and there are two more for the second.
    QStringList actionNames() const override
    {
        return ValuePart::actionNames() + QStringList{pressAction(), moveUpAction(), moveDownAction()};
    }

    QString localizedActionName(const QString &name) const override
    {
        return name == moveUpAction()  ? DiagramView::tr("Move up")
            : name == moveDownAction() ? DiagramView::tr("Move down")
                                       : Part::localizedActionName(name);
    }

    void doAction(const QString &name) override
    {
        if (isValid() && (name == moveUpAction() || name == moveDownAction())) {
            const double step = minimumStepSize().toDouble();
            moveTo(view(), vertex(), point() + QPointF(0.0, name == moveUpAction() ? step : -step));
        } else {
            ValuePart::doAction(name);
        }
    }

    QStringList keyBindingsForAction(const QString &name) const override
    {
        const QHash<QString, int> keys{{increaseAction(), Qt::Key_Right}, {decreaseAction(), Qt::Key_Left},
            {moveUpAction(), Qt::Key_Up}, {moveDownAction(), Qt::Key_Down}};
        return keys.contains(name) ? QStringList(QKeySequence(keys.value(name)).toString()) : QStringList();
    }

private:
    static QString moveUpAction() { return QStringLiteral("MoveUp"); }
    static QString moveDownAction() { return QStringLiteral("MoveDown"); }
};

class DiagramAccessible : public QAccessibleWidget {
public:
    explicit DiagramAccessible(DiagramView *view)
        : QAccessibleWidget(view, QAccessible::Chart)
    {
    }

    ~DiagramAccessible() override
    {
        for (const QAccessible::Id id : qAsConst(m_parts)) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString given = QAccessibleWidget::text(kind);
        if (!given.isEmpty() || (kind != QAccessible::Name && kind != QAccessible::Description)) {
            return given;
        }
        if (kind == QAccessible::Name) {
            return DiagramView::tr("Chromaticity diagram, %1")
                .arg(QString::fromUtf8(Model::diagramTraits(view().diagram()).name));
        }
        return showsHandles(view())
            ? DiagramView::tr("Tab goes from handle to handle, arrow keys move them, plus and minus zoom.")
            : QString();
    }

    int childCount() const override
    {
        return shownGamuts(view()).size() + (showsHandles(view()) ? int(allGamutVertices.size()) : 0);
    }

    QAccessibleInterface *child(int index) const override
    {
        const QVector<int> gamuts = shownGamuts(view());
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        return index < gamuts.size() ? part(gamuts[index]) : handle(allGamutVertices[size_t(index - gamuts.size())]);
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int i = 0; i < childCount(); ++i) {
            if (this->child(i) == child) {
                return i;
            }
        }
        return -1;
    }

    QAccessibleInterface *focusChild() const override
    {
        const auto vertex = view().selectedVertex();
        return view().hasFocus() && vertex && showsHandles(view()) ? handle(*vertex) : QAccessibleWidget::focusChild();
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int i = childCount() - 1; i >= 0; --i) {
            QAccessibleInterface *candidate = child(i);
            if (candidate->role() == QAccessible::Slider && candidate->rect().contains(x, y)) {
                return candidate;
            }
        }
        return nullptr;
    }

    QAccessibleInterface *handle(GamutVertex vertex) const { return part(verticesBegin + int(vertex)); }
    QAccessibleInterface *coordinate(GamutVertex vertex, bool isFirst) const
    {
        return part(coordinatesBegin + 2 * int(vertex) + (isFirst ? 0 : 1));
    }

    static DiagramAccessible *of(DiagramView *view)
    {
        return dynamic_cast<DiagramAccessible *>(QAccessible::queryAccessibleInterface(view));
    }

private:
    DiagramView &view() const { return *static_cast<DiagramView *>(widget()); }

    QAccessibleInterface *part(int key) const
    {
        const auto known = m_parts.constFind(key);
        if (known != m_parts.constEnd()) {
            return QAccessible::accessibleInterface(known.value());
        }
        QAccessibleInterface *made = nullptr;
        if (key >= coordinatesBegin) {
            const int place = key - coordinatesBegin;
            made = new CoordinatePart(&view(), GamutVertex(place / 2), place % 2 == 0);
        } else if (key >= verticesBegin) {
            made = new HandlePart(&view(), GamutVertex(key - verticesBegin));
        } else {
            made = new GamutPart(&view(), key);
        }
        m_parts.insert(key, QAccessible::registerAccessibleInterface(made));
        return made;
    }

    mutable QHash<int, QAccessible::Id> m_parts;
};

QAccessibleInterface *HandlePart::child(int index) const
{
    DiagramAccessible *diagram = isValid() ? DiagramAccessible::of(&view()) : nullptr;
    return diagram && index >= 0 && index < 2 ? diagram->coordinate(vertex(), index == 0) : nullptr;
}

QAccessibleInterface *CoordinatePart::parent() const
{
    DiagramAccessible *diagram = hasView() ? DiagramAccessible::of(&view()) : nullptr;
    return diagram ? diagram->handle(vertex()) : nullptr;
}

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *view = qobject_cast<DiagramView *>(object);
    return view ? new DiagramAccessible(view) : nullptr;
}

} // namespace

void (*sendAccessibilityEvent)(QAccessibleEvent *event) = QAccessible::updateAccessibility;

void installDiagramAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

void announceFocus(DiagramView *view, GamutVertex vertex)
{
    if (const DiagramAccessible *diagram = DiagramAccessible::of(view)) {
        QAccessibleEvent focus(diagram->handle(vertex), QAccessible::Focus);
        sendAccessibilityEvent(&focus);
    }
}

void announceMove(DiagramView *view, GamutVertex vertex)
{
    const DiagramAccessible *diagram = DiagramAccessible::of(view);
    if (!diagram) {
        return;
    }
    for (QAccessibleInterface *moved :
        {diagram->handle(vertex), diagram->coordinate(vertex, true), diagram->coordinate(vertex, false)}) {
        QAccessibleValueChangeEvent change(moved, moved->valueInterface()->currentValue());
        sendAccessibilityEvent(&change);
    }
    QAccessibleEvent description(diagram->handle(vertex), QAccessible::DescriptionChanged);
    sendAccessibilityEvent(&description);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(view, diagram->handle(vertex)->text(QAccessible::Value));
    sendAccessibilityEvent(&announcement);
#endif
}

void announceGamuts(DiagramView *view)
{
    QAccessibleEvent reorder(view, QAccessible::ObjectReorder);
    sendAccessibilityEvent(&reorder);
}

} // namespace ceiechart
