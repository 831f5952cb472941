// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/stepbox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

namespace {

bool isRedo(const QKeyEvent &event)
{
    // The window has both keys on every platform.
    return event.matches(QKeySequence::Redo)
        || (event.key() == Qt::Key_Y && event.modifiers() == Qt::KeyboardModifiers(Qt::ControlModifier));
}

bool isHistory(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Undo) || isRedo(event);
}

} // namespace

StepBox::StepBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    // An edit is made when the number is complete.
    setKeyboardTracking(false);
    setAccelerated(true);
    setAlignment(Qt::AlignRight);
}

void StepBox::setNoValue(const QString &text, double firstStep)
{
    setSpecialValueText(text);
    m_firstStep = firstStep;
}

void StepBox::showNumber(const std::optional<double> &number)
{
    const QSignalBlocker blocker(this);
    setValue(number.value_or(minimum()));
}

bool StepBox::isBeingTyped() const
{
    return lineEdit()->text() != (hasValue() ? prefix() + textFromValue(value()) + suffix() : specialValueText());
}

void StepBox::setDoubt(const QString &why)
{
    setToolTip(why);
    setAccessibleDescription(why);
    if (m_doubted == !why.isEmpty()) {
        return;
    }
    m_doubted = !why.isEmpty();
    QFont own;
    QPalette colors;
    if (m_doubted) {
        own.setItalic(true);
        const bool isDark = palette().color(QPalette::Base).lightness() < 128;
        colors.setColor(QPalette::Text, isDark ? QColor(255, 140, 130) : QColor(175, 0, 20));
    }
    setFont(own);
    setPalette(colors);
}

void StepBox::stepBy(int steps)
{
    if (!hasValue()) {
        setValue(*m_firstStep);
        selectAll();
        return;
    }
    const double step = singleStep();
    if (QApplication::keyboardModifiers() & Qt::ShiftModifier) {
        setSingleStep(step / 10.0);
    }
    QDoubleSpinBox::stepBy(steps);
    setSingleStep(step);
}

QAbstractSpinBox::StepEnabled StepBox::stepEnabled() const
{
    return hasValue() ? QDoubleSpinBox::stepEnabled() : StepUpEnabled | StepDownEnabled;
}

QString StepBox::digits(const QString &text) const
{
    const bool hasSuffix = !suffix().isEmpty() && text.endsWith(suffix());
    return (hasSuffix ? text.chopped(suffix().size()) : text).trimmed();
}

QValidator::State StepBox::validate(QString &text, int &position) const
{
    const QString point = QStringLiteral("(?:\\.|%1)").arg(QRegularExpression::escape(locale().decimalPoint()));
    const QString number = QStringLiteral("[+-]?(?:[0-9]+%1?[0-9]*|%1[0-9]+)").arg(point);
    const QRegularExpression whole(QStringLiteral("\\A%1(?:[eE][+-]?[0-9]+)?\\z").arg(number));
    const QRegularExpression begun(QStringLiteral("\\A(?:[+-]?%1?|%2[eE][+-]?)\\z").arg(point, number));
    const QString typed = digits(text);
    if (whole.match(typed).hasMatch()) {
        return QValidator::Acceptable;
    }
    return begun.match(typed).hasMatch() ? QValidator::Intermediate : QDoubleSpinBox::validate(text, position);
}

double StepBox::valueFromText(const QString &text) const
{
    // A point stands before decimals whatever the locale has it for.
    QLocale strict = locale();
    strict.setNumberOptions(QLocale::RejectGroupSeparator);
    const QString typed = digits(text);
    for (const QLocale &language : {strict, QLocale::c()}) {
        bool ok = false;
        const double number = language.toDouble(typed, &ok);
        if (ok || std::isinf(number)) {
            return std::clamp(QString::number(number, 'f', decimals()).toDouble(), minimum(), maximum());
        }
    }
    return QDoubleSpinBox::valueFromText(text);
}

QString StepBox::textFromValue(double value) const
{
    // Not a zero with a sign.
    const bool isZero = QString::number(std::fabs(value), 'f', decimals()).toDouble() == 0.0;
    return QDoubleSpinBox::textFromValue(isZero ? 0.0 : value);
}

QSize StepBox::sizeHint() const
{
    // The range of luminances is wide; what is usual must fit.
    const QSize text(fontMetrics().horizontalAdvance(QStringLiteral("1000.00")), QDoubleSpinBox::sizeHint().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return QSize(style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this).width(), text.height());
}

bool StepBox::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (isHistory(*key)) {
            // The line edit would keep the keys from the window.
            key->setAccepted(isBeingTyped());
            return true;
        }
    }
    return QDoubleSpinBox::event(event);
}

void StepBox::keyPressEvent(QKeyEvent *event)
{
    if (isHistory(*event)) {
        if (!isBeingTyped()) {
            event->ignore();
        } else if (isRedo(*event)) {
            lineEdit()->redo();
        } else {
            lineEdit()->undo();
        }
        return;
    }
    if (!hasValue() && lineEdit()->text() == specialValueText()) {
        // What is typed takes the place of the text that says so.
        selectAll();
    }
    QDoubleSpinBox::keyPressEvent(event);
}

} // namespace gamutviewer
