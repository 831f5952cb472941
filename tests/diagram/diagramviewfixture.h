// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_DIAGRAM_DIAGRAMVIEWFIXTURE_H
#define TESTS_DIAGRAM_DIAGRAMVIEWFIXTURE_H

#include <ceiechart/diagram/diagramview.h>
#include <ceiechart/diagram/diagramview_p.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStyleHints>
#include <QWheelEvent>
#include <QtTest>

#include <cmath>
#include <memory>

Q_DECLARE_METATYPE(Model::ColorGamut)
Q_DECLARE_METATYPE(Model::Diagram)
Q_DECLARE_METATYPE(std::optional<ceiechart::GamutVertex>)

/*! What the tests of the view have in common. */
namespace diagramtests {

using namespace ceiechart;

inline Model::ColorGamut wall()
{
    return Model::ColorGamut("LED wall",
        {Model::Target::fromYxy(240, 0.700, 0.299), Model::Target::fromYxy(634, 0.189, 0.718),
            Model::Target::fromYxy(126, 0.133, 0.075), Model::Target::fromYxy(1000, 0.2829, 0.2971)});
}

//! A view that notes what it is asked to paint.
class View : public DiagramView {
public:
    View()
    {
        qRegisterMetaType<Model::ColorGamut>("Model::ColorGamut"); // for spies
        setOriginal(wall());
        setStandards({Model::rec2020()});
        setTarget(Model::rec709());
        // So that a hand moves as far as it says; tests of snapping take the library's own rules.
        auto rules = std::make_shared<StandardTargetRules>();
        rules->setSnaps(false);
        setRules(rules);
        resize(800, 700);
        show();
        paintAll();
    }

    void paintAll()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    QRegion takePainted()
    {
        paintAll();
        const QRegion result = m_painted;
        m_painted = QRegion();
        return result;
    }

    QPointF at(const QPointF &xy) const { return viewport().toPosition(xy); }
    QPointF at(GamutVertex vertex) const { return at(xy(vertex)); }
    QPointF xy(GamutVertex vertex) const { return xyOf(targetAt(gamut(GamutRole::Target)->getTargets(), vertex)); }

    void mouse(QEvent::Type type, const QPointF &position, Qt::MouseButton button, Qt::MouseButtons buttons,
        Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(
            type, position, position, QPointF(mapToGlobal(QPoint())) + position, button, buttons, modifiers);
        QCoreApplication::sendEvent(this, &event);
    }
    void press(const QPointF &position, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonPress, position, button, button);
    }
    void drag(const QPointF &position, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
        Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseMove, position, Qt::NoButton, button, modifiers);
    }
    void release(const QPointF &position, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonRelease, position, button, Qt::NoButton);
    }
    void hover(const QPointF &position) { mouse(QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton); }

    void wheel(const QPointF &position, const QPoint &angle, const QPoint &pixels = QPoint(),
        Qt::KeyboardModifiers modifiers = Qt::NoModifier, Qt::ScrollPhase phase = Qt::NoScrollPhase)
    {
        QWheelEvent event(
            position, QPointF(mapToGlobal(QPoint())) + position, pixels, angle, Qt::NoButton, modifiers, phase, false);
        QCoreApplication::sendEvent(this, &event);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        m_painted += event->region();
        DiagramView::paintEvent(event);
    }

private:
    QRegion m_painted;
};

inline double length(const QPointF &way)
{
    return std::hypot(way.x(), way.y());
}

//! Where nothing lies that could be dragged or snapped to.
inline QPointF freeGround(const View &view)
{
    return view.viewport().plot().topRight() + QPointF(-60.0, 120.0);
}

} // namespace diagramtests

#endif // TESTS_DIAGRAM_DIAGRAMVIEWFIXTURE_H
