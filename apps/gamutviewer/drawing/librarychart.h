// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LIBRARYCHART_H
#define GAMUTVIEWER_LIBRARYCHART_H

#include <ceiechart/diagram/diagramcontent.h>

#include <QImage>
#include <QSize>

namespace gamutviewer {

/*!
 * \brief The picture that the library's current chart draws of \a content in \a size pixels, bit by bit; a null image
 * when there is no memory for one.
 *
 * Gamuts have the colours, widths and kinds that the chart view gives those of its host. Which layers are on does not
 * count: the chart has none. It knows no declared gamut, so that one is drawn as a measured one in a colour of its own.
 */
QImage libraryChart(const ceiechart::DiagramContent &content, const QSize &size);

} // namespace gamutviewer

#endif
