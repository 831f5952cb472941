// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_ASSESSMENTFIXTURE_H
#define TESTS_APPS_ASSESSMENTFIXTURE_H

#include "display/assessment.h"

#include <QRegularExpression>

Q_DECLARE_METATYPE(gamutviewer::Judgement)
Q_DECLARE_METATYPE(gamutviewer::LuminanceUnit)

/*! \brief Displays to be judged, and what is said of them. */
namespace assessmentfixture {

using namespace gamutviewer;
using Vertex = ceiechart::GamutVertex;
using Subject = AssessmentLine::Subject;

constexpr LuminanceUnit cd = LuminanceUnit::CandelaPerSquareMetre;

inline DisplayGamut named(const char *name, const Model::Targets &targets, LuminanceUnit unit)
{
    return {Model::ColorGamut(name, targets), unit};
}

inline Model::Targets scaled(const Model::Targets &targets, double factor)
{
    const auto at = [factor](const Model::Target &t) { return Model::Target::fromYxy(t.Y * factor, t.x, t.y); };
    return {at(targets.red), at(targets.green), at(targets.blue), at(targets.white)};
}

/*! Rec.2020 with a white of 1000 cd/m²; its target has the chromaticities of Rec.709 and a white of \a luminance. */
inline DisplayDescription wall(double luminance, LuminanceUnit targetUnit = cd, LuminanceUnit wallUnit = cd)
{
    DisplayDescription d;
    d.gamuts.push_back(named("Wall", scaled(Model::rec2020().getTargets(), 1000.0), wallUnit));
    d.gamuts.push_back(named("Wanted", scaled(Model::rec709().getTargets(), luminance), targetUnit));
    d.original = QStringLiteral("Wall");
    d.target = QStringLiteral("Wanted");
    return d;
}

inline Model::Targets &targetsOf(DisplayDescription &d, int index)
{
    return const_cast<Model::Targets &>(d.gamuts[size_t(index)].getTargets());
}

inline QVector<AssessmentLine> about(const Assessment &assessment, Subject subject)
{
    QVector<AssessmentLine> lines;
    for (const AssessmentLine &line : assessment.lines) {
        if (line.subject == subject) {
            lines.append(line);
        }
    }
    return lines;
}

/*! All numbers in \a text. */
inline QVector<double> numbers(const QString &text)
{
    QVector<double> found;
    static const QRegularExpression number(QStringLiteral("-?[0-9]+\\.?[0-9]*"));
    for (auto it = number.globalMatch(text); it.hasNext();) {
        found.append(it.next().captured().toDouble());
    }
    return found;
}

} // namespace assessmentfixture

#endif
