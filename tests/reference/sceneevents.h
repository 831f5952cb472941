// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_SCENEEVENTS_H
#define CEIECHART_TESTS_REFERENCE_SCENEEVENTS_H

#include <QCoreApplication>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QTest>

namespace reference {

/*! \brief Sends a mouse event that is not accepted yet; whether it is afterwards. */
inline bool sendMouse(QGraphicsScene &scene, QEvent::Type type, const QPointF &position, Qt::MouseButton button)
{
    QGraphicsSceneMouseEvent event(type);
    event.setScenePos(position);
    event.setButton(button);
    event.setAccepted(false);
    QCoreApplication::sendEvent(&scene, &event);
    return event.isAccepted();
}

inline void sendKey(QGraphicsScene &scene, QEvent::Type type, int key, bool autoRepeat = false)
{
    QKeyEvent event(type, key, Qt::NoModifier, QString(), autoRepeat);
    QCoreApplication::sendEvent(&scene, &event);
}

/*! \brief Neither accepted nor ignored, and not handed on to QGraphicsScene, which would ignore them. */
inline void verifyKeyEventsKeepTheirAcceptance(QGraphicsScene &scene)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        for (const int key : {int(Qt::Key_Left), int(Qt::Key_Space), int(Qt::Key_A)}) {
            for (const bool accepted : {true, false}) {
                QKeyEvent event(type, key, Qt::NoModifier);
                event.setAccepted(accepted);
                QCoreApplication::sendEvent(&scene, &event);
                QCOMPARE(event.isAccepted(), accepted);
            }
        }
    }
}

/*! \brief QGraphicsScene's own mouse handlers are not called: they would hand the events on to items. */
inline void verifyItemsGetNoMouseEvents(QGraphicsScene &scene)
{
    class Item : public QGraphicsRectItem {
    public:
        using QGraphicsRectItem::QGraphicsRectItem;
        int events = 0;

    protected:
        void mousePressEvent(QGraphicsSceneMouseEvent *) override { ++events; }
        void mouseMoveEvent(QGraphicsSceneMouseEvent *) override { ++events; }
        void mouseReleaseEvent(QGraphicsSceneMouseEvent *) override { ++events; }
    };
    auto *item = new Item(QRectF(0, 0, 800, 800));
    scene.addItem(item);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, QPointF(300, 300), Qt::LeftButton);
    QCOMPARE(item->events, 0);
    item->grabMouse();
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, QPointF(310, 300), Qt::NoButton);
    sendMouse(scene, QEvent::GraphicsSceneMouseRelease, QPointF(310, 300), Qt::LeftButton);
    QCOMPARE(item->events, 0);
    QCOMPARE(scene.mouseGrabberItem(), item);
}

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_SCENEEVENTS_H
