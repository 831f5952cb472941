// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/valuetexts.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace gamutviewer {

QString fixedText(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    // Of numbers with digits other than 0, and of "-inf", the sign stays.
    const bool isZero = std::all_of(text.cbegin(), text.cend(), [](QChar letter) {
        return letter == QLatin1Char('0') || letter == QLatin1Char('.') || letter == QLatin1Char('-');
    });
    if (isZero && text.startsWith(QLatin1Char('-'))) {
        text.remove(0, 1);
    }
    return text;
}

QString temperatureText(const ceiechart::ColorTemperature &temperature)
{
    return QCoreApplication::translate("gamutviewer", "%1 K").arg(fixedText(temperature.kelvin, 0));
}

QString duvText(const ceiechart::ColorTemperature &temperature)
{
    return fixedText(temperature.duv, 4);
}

QString undefinedText()
{
    return QStringLiteral("–");
}

QString percent(double value)
{
    return QCoreApplication::translate("gamutviewer", "%1 %").arg(fixedText(value * 100.0, 1));
}

QString luminanceText(double luminance)
{
    return fixedText(luminance, std::fabs(luminance) < 10.0 ? 4 : 1);
}

QString luminanceUnitText(gamutfiles::LuminanceUnit unit)
{
    switch (unit) {
    case gamutfiles::LuminanceUnit::CandelaPerSquareMetre:
        return QCoreApplication::translate("gamutviewer", "cd/m²");
    case gamutfiles::LuminanceUnit::Relative:
        return QCoreApplication::translate("gamutviewer", "relative");
    case gamutfiles::LuminanceUnit::NotKnown:
        break;
    }
    return QCoreApplication::translate("gamutviewer", "unit not known");
}

QString luminanceText(double luminance, gamutfiles::LuminanceUnit unit)
{
    const QString text = unit == gamutfiles::LuminanceUnit::CandelaPerSquareMetre
        ? QStringLiteral("%1 %2")
        : QCoreApplication::translate("gamutviewer", "%1 (%2)", "luminance and what its unit is: 1.0000 (relative)");
    return text.arg(luminanceText(luminance), luminanceUnitText(unit));
}

QString wavelengthText(const Model::DominantWavelength &hue)
{
    return fixedText(hue.wavelength, 1);
}

QString plainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

QString purityText(const Model::DominantWavelength &hue)
{
    return fixedText(hue.purity, 3);
}

} // namespace gamutviewer
