// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "events.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QPointer>
#include <QWheelEvent>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

namespace soak {

double Round::number()
{
    static const double hostile[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), 1e300, -1e300, DBL_MAX, DBL_MIN, 5e-324, 0.0, -0.0, double(INT_MAX),
        double(INT_MIN), 1e-9, 1e10, 1.0, -1.0};
    constexpr int count = int(sizeof hostile / sizeof *hostile);
    const int choice = between(0, 2 * count);
    return choice < count ? hostile[choice] : real(-0.1, 1.0);
}

int Round::integer()
{
    static const int hostile[] = {INT_MAX, INT_MIN, INT_MAX - 1, -1, 0, 1, 2, 3, 46341, 65536, 32768, 1 << 24, -200};
    constexpr int count = int(sizeof hostile / sizeof *hostile);
    const int choice = between(0, 5 * count);
    return choice < count ? hostile[choice] : between(10, 700);
}

QString Round::text()
{
    switch (between(0, 9)) {
    case 0:
        return QStringLiteral("<b>bold</b><img src=\"/etc/passwd\">");
    case 1:
        return QStringLiteral("%1 %2 %99 %n [*]");
    case 2:
        return QString(QChar(0x202E)) + QStringLiteral("turned\nline\ttab") + QChar(0xFEFF) + QChar(0xD800);
    case 3:
        return QString(between(100, 3000), QLatin1Char('w'));
    case 4:
        return {};
    case 5:
        return QStringLiteral("Rec.709");
    default:
        return QStringLiteral("name %1").arg(between(0, 9));
    }
}

namespace {

QPoint somewhere(Round &round, const QWidget *widget)
{
    return {round.between(-3, widget->width() + 3), round.between(-3, widget->height() + 3)};
}

Qt::MouseButton button(Round &round)
{
    static const Qt::MouseButton buttons[]
        = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    return buttons[round.between(0, 5)];
}

Qt::KeyboardModifiers modifiers(Round &round)
{
    static const Qt::KeyboardModifiers all[]
        = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
            Qt::ControlModifier | Qt::AltModifier, Qt::ControlModifier | Qt::ShiftModifier};
    return all[round.between(0, 7)];
}

void sendMouse(Round &round, const QPointer<QWidget> &widget, QEvent::Type type, const QPoint &at,
    Qt::MouseButton pressed, Qt::KeyboardModifiers keys)
{
    if (!widget) {
        return;
    }
    const bool isMove = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::MouseButtons() : pressed;
    QMouseEvent event(type, at, widget->mapToGlobal(at), isMove ? Qt::NoButton : pressed, held, keys);
    round.count();
    QApplication::sendEvent(widget, &event);
}

// A press, some moves and a release, of which some may be missing.
void useMouse(Round &round, QWidget *target)
{
    const QPointer<QWidget> widget(target);
    QPoint at = somewhere(round, widget);
    const Qt::MouseButton pressed = button(round);
    const Qt::KeyboardModifiers keys = modifiers(round);
    if (round.chance(90)) {
        sendMouse(round, widget, QEvent::MouseButtonPress, at, pressed, keys);
    }
    for (int i = round.between(0, round.chance(10) ? 50 : 4); i > 0 && widget; --i) {
        const int step = round.chance(80) ? 15 : 400;
        at += QPoint(round.between(-step, step), round.between(-step, step));
        sendMouse(round, widget, QEvent::MouseMove, at, round.chance(90) ? pressed : Qt::NoButton, keys);
    }
    if (round.chance(90)) {
        sendMouse(round, widget, QEvent::MouseButtonRelease, at, pressed, keys);
    }
    if (round.chance(10)) {
        sendMouse(round, widget, QEvent::MouseButtonDblClick, at, pressed, keys);
    }
}

void turnWheel(Round &round, QWidget *widget)
{
    const QPoint at = somewhere(round, widget);
    const int most = round.chance(90) ? 240 : INT_MAX / 2;
    const QPoint angle(round.between(-most, most), round.between(-most, most));
    const QPoint pixels = round.chance(30) ? angle : QPoint();
    QWheelEvent event(at, widget->mapToGlobal(at), pixels, angle, Qt::NoButton, modifiers(round),
        round.chance(20) ? Qt::ScrollUpdate : Qt::NoScrollPhase, round.chance(20));
    QApplication::sendEvent(widget, &event);
}

void alter(Round &round, QWidget *widget)
{
    round.oneOf({
        [&] {
            QPalette palette = widget->palette();
            palette.setColor(QPalette::Window, round.toss() ? Qt::black : Qt::white);
            palette.setColor(QPalette::WindowText, round.toss() ? Qt::black : Qt::white);
            widget->setPalette(palette);
        },
        [&] {
            QFont font = widget->font();
            font.setPointSizeF(round.real(3.0, 40.0));
            widget->setFont(round.toss() ? font : QFont());
        },
        [&] { widget->setLayoutDirection(round.toss() ? Qt::RightToLeft : Qt::LeftToRight); },
        [&] { widget->setEnabled(round.chance(70)); },
        [&] {
            QEvent event(QEvent::LanguageChange);
            QApplication::sendEvent(widget, &event);
        },
        [&] {
            QEvent event(round.toss() ? QEvent::StyleChange : QEvent::ScreenChangeInternal);
            QApplication::sendEvent(widget, &event);
        },
    });
}

} // namespace

QWidget *someWidget(Round &round, QWidget *window)
{
    QList<QWidget *> shown{window};
    for (QWidget *child : window->findChildren<QWidget *>()) {
        if (child->isVisible()) {
            shown.append(child);
        }
    }
    return shown.at(round.between(0, int(shown.size()) - 1));
}

void sendKey(Round &round, QWidget *widget)
{
    static const int known[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Backtab,
        Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Delete,
        Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0, Qt::Key_R, Qt::Key_G, Qt::Key_B, Qt::Key_W, Qt::Key_Z, Qt::Key_Shift,
        Qt::Key_Alt, Qt::Key_9, Qt::Key_Comma, Qt::Key_Period, Qt::Key_E, Qt::Key_Backspace};
    constexpr int count = int(sizeof known / sizeof *known);
    const int key = known[round.between(0, count - 1)];
    const QString text = key >= 0x20 && key < 0x7F ? QString(QChar(key)).toLower() : QString();
    const Qt::KeyboardModifiers keys = modifiers(round);
    const QPointer<QWidget> target(widget);
    for (int i = round.between(1, 3); i > 0 && target; --i) {
        QKeyEvent press(QEvent::KeyPress, key, keys, text, i > 1);
        round.count();
        QApplication::sendEvent(target, &press);
    }
    if (target && round.chance(90)) {
        QKeyEvent release(QEvent::KeyRelease, key, keys, text);
        round.count();
        QApplication::sendEvent(target, &release);
    }
}

void sendEvent(Round &round, QWidget *widget)
{
    switch (round.between(0, 15)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
        useMouse(round, widget);
        break;
    case 5:
    case 6:
        turnWheel(round, widget);
        break;
    case 7:
    case 8:
    case 9:
    case 10:
        sendKey(round, widget);
        break;
    case 11:
        widget->setFocus(round.toss() ? Qt::TabFocusReason : Qt::MouseFocusReason);
        break;
    case 12: {
        QEvent event(round.toss() ? QEvent::Leave : QEvent::ShortcutOverride);
        if (event.type() == QEvent::Leave) {
            QApplication::sendEvent(widget, &event);
        }
        break;
    }
    case 13:
        if (!widget->grab().isNull()) {
            round.count();
        }
        break;
    case 14:
        if (round.chance(30)) {
            alter(round, widget);
        }
        break;
    default: {
        const QPoint at = somewhere(round, widget);
        QMouseEvent event(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
        break;
    }
    }
}

} // namespace soak
