// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_SOAK_EVENTS_H
#define CEIECHART_TESTS_SOAK_EVENTS_H

#include "soak.h"

#include <QPoint>
#include <QWidget>

namespace soak {

/*! \brief Sends a random event of mouse, wheel, keyboard, focus, size or appearance to \a widget, or where it leads. */
void sendEvent(Round &round, QWidget *widget);

/*! \brief A key, mostly one that does something, with any modifiers. */
void sendKey(Round &round, QWidget *widget);

/*! \brief Some widget in \a window that is shown, \a window among them. */
QWidget *someWidget(Round &round, QWidget *window);

} // namespace soak

#endif // CEIECHART_TESTS_SOAK_EVENTS_H
