// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_REPORTVALUES_H
#define GAMUTVIEWER_REPORTVALUES_H

#include "display/gamutfiles.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/diagram.h>
#include <gamutmodel/drive.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

/*!
 * \file
 * \brief How the report writes what its parts have in common.
 */
namespace gamutviewer {

/*! \brief "cd/m2", "relative" or null. */
QJsonValue unitValue(LuminanceUnit unit);

/*! \brief The name of \a vertex as keys have it. */
QString colorName(ceiechart::GamutVertex vertex);
/*! \brief The name of \a primary as keys have it. */
QString primaryName(Model::Primary primary);

/*! \brief One entry for each diagram that areas are compared on, "xy" and "uv": \a value of the diagram. */
template <typename Value>
QJsonObject perDiagram(Value value)
{
    return {
        {QStringLiteral("xy"), value(Model::Diagram::Cie1931)}, {QStringLiteral("uv"), value(Model::Diagram::Cie1976)}};
}

} // namespace gamutviewer

#endif
