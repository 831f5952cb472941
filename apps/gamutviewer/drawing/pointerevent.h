// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_POINTEREVENT_H
#define GAMUTVIEWER_POINTEREVENT_H

#include <QMouseEvent>

namespace gamutviewer {

// Qt 6 gave these other names.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
inline QPointF pointerPosition(const QMouseEvent &event)
{
    return event.position();
}

inline QMouseEvent movedTo(const QMouseEvent &event, const QPointF &position)
{
    return QMouseEvent(event.type(), position, event.scenePosition(), event.globalPosition(), event.button(),
        event.buttons(), event.modifiers(), event.pointingDevice());
}
#else
inline QPointF pointerPosition(const QMouseEvent &event)
{
    return event.localPos();
}

inline QMouseEvent movedTo(const QMouseEvent &event, const QPointF &position)
{
    return QMouseEvent(event.type(), position, event.windowPos(), event.screenPos(), event.button(), event.buttons(),
        event.modifiers(), event.source());
}
#endif

} // namespace gamutviewer

#endif
