// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ASSESSMENTTEXTS_H
#define GAMUTVIEWER_ASSESSMENTTEXTS_H

#include "display/knowndisplay.h"

#include <ceiechart/diagram/targetrules.h>
#include <gamutmodel/drive.h>

#include <QCoreApplication>
#include <QString>

/*!
 * \file
 * \brief What the sentences of an assessment are made of.
 */
namespace gamutviewer {

/*! \brief The texts of assessments, of whatever file. */
struct AssessmentText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::Assessment)
};

/*! \brief \a text with a capital at its beginning. */
QString capitalised(QString text);

/*! \brief "original" or "measured gamut", and of a cabinet the name that the gamut has elsewhere, too. */
QString displayName(const KnownDisplay &display);
/*! \brief The mark of \a vertex on the diagram: "handle “red” of the target". */
QString handleName(ceiechart::GamutVertex vertex);

/*! \brief "0.3127, 0.3290". */
QString pointText(const Model::DiagramPoint &point);
/*! \brief A distance that is not 0 in Δu′v′, with the decimals that it takes not to look like 0 either. */
QString distanceText(double distance);

/*! \brief \a luminance in the digits of luminanceText(), rounded down, so that what can be reached is no less. */
double roundedDown(double luminance);
/*! \brief roundedDown() as a text. */
QString reachableText(double luminance, LuminanceUnit unit);
/*! \brief The same without the unit. */
QString reachableText(double luminance);
/*! \brief reachableText() beside luminanceText() of \a wanted: it is not less where \a luminance is not. */
QString reachedText(double luminance, double wanted, LuminanceUnit unit);
/*! \brief "red 71.0 %, green 68.2 %, blue 64.9 %". */
QString drivesText(const Model::Drive &drive);
/*! \brief That a drive above 1 counts as full, and up to which. */
QString countsAsFullText();

/*! \brief Why luminances of the target and of \a other, called \a otherName, cannot be compared, and what to do. */
QString incomparableText(LuminanceUnit target, LuminanceUnit other, const QString &otherName);

} // namespace gamutviewer

#endif
