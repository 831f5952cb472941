// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "panel/signallog.h"

#include "display/valuetexts.h"

namespace gamutviewer {

namespace {

constexpr int keptLines = 500;
constexpr int shownLines = 5;

QString shown(const QPointF &point)
{
    return QStringLiteral("(%1, %2)").arg(fixedText(point.x(), 4), fixedText(point.y(), 4));
}

} // namespace

SignalLog::SignalLog(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setMaximumBlockCount(keptLines);
    setLineWrapMode(NoWrap);
    setTabChangesFocus(true);
    setAccessibleName(tr("Log of the charts' signals"));
    setPlaceholderText(tr("The signals of the charts appear here."));
}

QSize SignalLog::sizeHint() const
{
    const int around = 2 * (frameWidth() + int(document()->documentMargin()));
    return {QPlainTextEdit::sizeHint().width(), shownLines * fontMetrics().lineSpacing() + around};
}

void SignalLog::logTarget(const QString &chart, const char *signal, const ColorTriangleObject &target)
{
    const TrianglePoint &t = target.trianglePoint();
    log(chart,
        QStringLiteral("%1 R %2 G %3 B %4 W %5")
            .arg(QLatin1String(signal), shown(t.redPos()), shown(t.greenPos()), shown(t.bluePos()),
                shown(t.whitePos())));
}

void SignalLog::logTemperature(const QString &chart, double kelvin)
{
    // Reported at every repaint; only news is worth a line.
    const auto last = m_lastTemperature.find(chart);
    if (last == m_lastTemperature.end() || *last != kelvin) {
        m_lastTemperature[chart] = kelvin;
        log(chart, QStringLiteral("colorTempertrueValueChang %1 K").arg(kelvin));
    }
}

void SignalLog::logReport(const QString &chart, const TargetInfoChangedEventArgs &report)
{
    log(chart,
        QStringLiteral("targetInfoChanged W %1 %2 K, %3")
            .arg(shown(report.colorTriangleObject().trianglePoint().whitePos()))
            .arg(report.colourTemperature())
            .arg(report.isReasonableData() ? tr("valid") : tr("invalid")));
}

void SignalLog::logInitialized(const QString &chart, const TriangleObjecIinitializedEventArgs &report)
{
    log(chart,
        QStringLiteral("triangleObjecIinitialized %1").arg(report.isEffectiveValue() ? tr("valid") : tr("invalid")));
}

void SignalLog::log(const QString &chart, const QString &text)
{
    // Signals may come in the middle of painting, when widgets are best left alone.
    if (m_pending.isEmpty()) {
        QMetaObject::invokeMethod(this, &SignalLog::flush, Qt::QueuedConnection);
    }
    m_pending.append(chart + QStringLiteral(": ") + text);
}

void SignalLog::flush()
{
    appendPlainText(m_pending.join(QLatin1Char('\n')));
    m_pending.clear();
}

} // namespace gamutviewer
