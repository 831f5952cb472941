// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_GAMUTCOLORS_H
#define GAMUTVIEWER_GAMUTCOLORS_H

#include "editing/gamutparts.h"

#include <gamutmodel/gamutcoverage.h>

#include <QColor>

namespace gamutviewer {

/*!
 * \brief The colour of a part's gamut on the charts, which are dark whatever the palette.
 *
 * It is the one that the current chart gives it; for what a display declares, which that chart does not know, it is
 * the program's own. \a besideMeasured is whether there is a measured gamut too.
 */
QColor chartColor(GamutPart::Role role, bool besideMeasured);

/*! \brief Its line where the program draws it itself: a style of its own beside the colour. */
Qt::PenStyle lineStyle(GamutPart::Role role);

/*! \brief What fills the library's charts of \a diagram. */
QColor chartGround(Model::Diagram diagram);

/*! \brief How the charts show a standard. */
struct StandardStyle {
    QColor outline;
    double fillOpacity;

    /*! \brief The tint within the outline, truncated to steps of 1/256 as in the library's pictures. */
    QColor fill() const;
};
StandardStyle standardStyle(const QString &name);

} // namespace gamutviewer

#endif
