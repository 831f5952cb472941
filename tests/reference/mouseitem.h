// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_MOUSEITEM_H
#define CEIECHART_TESTS_REFERENCE_MOUSEITEM_H

#include <QGraphicsRectItem>
#include <QGraphicsSceneMouseEvent>

namespace reference {

/*! \brief An item that accepts and counts the mouse events that the handlers of QGraphicsScene pass to items. */
class MouseItem : public QGraphicsRectItem {
public:
    using QGraphicsRectItem::QGraphicsRectItem;

    int events = 0;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override { take(event); }
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override { take(event); }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override { take(event); }

private:
    void take(QGraphicsSceneMouseEvent *event)
    {
        ++events;
        event->accept();
    }
};

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_MOUSEITEM_H
