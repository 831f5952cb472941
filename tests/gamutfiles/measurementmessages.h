// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_GAMUTFILES_MEASUREMENTMESSAGES_H
#define CEIECHART_TESTS_GAMUTFILES_MEASUREMENTMESSAGES_H

#include <gamutfiles/measurementlist.h>

#include <algorithm>
#include <cmath>

//! A list with all of the colours of a gamut, and one more.
inline const QByteArray whole
    = "name,Y,x,y\nRed,200,0.7,0.29\nGreen,700,0.2,0.7\nBlue,100,0.15,0.05\nWhite,1000,0.28,0.29\n"
      "grey 50 %,500,0.281,0.291\n";

//! The whole list with a known unit.
inline const QByteArray known = QByteArray(whole).replace("name,Y", "name,Lv");

//! Why \a text is refused.
inline QString errorOf(const QByteArray &text, const gamutfiles::MeasurementOptions &options = {})
{
    const auto list = gamutfiles::readMeasurementList(text, options);
    return list ? QStringLiteral("taken") : list.error();
}

inline QStringList warningsOf(const QByteArray &text, const gamutfiles::MeasurementOptions &options = {})
{
    const auto list = gamutfiles::readMeasurementList(text, options);
    if (!list) {
        return {QStringLiteral("refused: ") + list.error()};
    }
    QStringList messages;
    for (const gamutfiles::Problem &warning : list.warnings()) {
        messages.append(warning.message());
    }
    return messages;
}

//! The warnings of a list without all of the colours of a gamut, but for the last one, which says so.
inline QStringList otherWarningsOf(const QByteArray &text, const gamutfiles::MeasurementOptions &options = {})
{
    QStringList messages = warningsOf(text, options);
    const auto isOfColors = [](const QString &message) {
        return message.startsWith("there is no gamut; missing: ")
            || message.startsWith("there is no gamut, as no measurement is recognised");
    };
    if (messages.isEmpty() || !isOfColors(messages.last())) {
        return {QStringLiteral("nothing says that there is no gamut")};
    }
    messages.removeLast();
    return messages;
}

inline QStringList namesOf(const QVector<gamutfiles::Measurement> &measurements)
{
    QStringList names;
    for (const gamutfiles::Measurement &measurement : measurements) {
        names.append(measurement.name);
    }
    return names;
}

inline bool isNear(double a, double b)
{
    return std::abs(a - b) < 1e-9 * std::max(1.0, std::abs(b));
}

#endif
