// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SIGNALLOG_H
#define GAMUTVIEWER_SIGNALLOG_H

#include <ceiechart/model/targetinfochangedeventargs.h>
#include <ceiechart/model/triangleobjeciinitializedeventargs.h>

#include <QHash>
#include <QPlainTextEdit>
#include <QStringList>

namespace gamutviewer {

/*! \brief A log of what charts report, as a host receives it. */
class SignalLog : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    /*! \brief Room for a few lines. */
    QSize sizeHint() const override;

    /*! \brief Logs the signals of \a chart, a view of either generation, under \a name. */
    template <class Chart>
    void watch(const Chart *chart, const QString &name)
    {
        connect(chart, &Chart::signal_colorGamutValueChanged, this,
            [this, name](const ColorTriangleObject &target) { logTarget(name, "colorGamutValueChanged", target); });
        connect(chart, &Chart::signal_colorGamutWhiteChanged, this,
            [this, name](const ColorTriangleObject &target) { logTarget(name, "colorGamutWhiteChanged", target); });
        connect(chart, &Chart::signal_colorTempertrueValueChang, this,
            [this, name](double kelvin) { logTemperature(name, kelvin); });
        connect(chart, &Chart::signal_targetInfoChanged, this,
            [this, name](const TargetInfoChangedEventArgs &report) { logReport(name, report); });
        connect(chart, &Chart::signal_triangleObjecIinitialized, this,
            [this, name](const TriangleObjecIinitializedEventArgs &report) { logInitialized(name, report); });
    }

private:
    void logTarget(const QString &chart, const char *signal, const ColorTriangleObject &target);
    void logTemperature(const QString &chart, double kelvin);
    void logReport(const QString &chart, const TargetInfoChangedEventArgs &report);
    void logInitialized(const QString &chart, const TriangleObjecIinitializedEventArgs &report);
    void log(const QString &chart, const QString &text);
    void flush();

    QStringList m_pending;
    QHash<QString, double> m_lastTemperature;
};

} // namespace gamutviewer

#endif
