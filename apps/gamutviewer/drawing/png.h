// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_PNG_H
#define GAMUTVIEWER_PNG_H

#include <QByteArray>

class QImage;

namespace gamutviewer {

/*!
 * \brief \a image as a PNG file with its resolution; empty if there is no memory for it or it is null.
 *
 * It takes about half of the time of QImage::save(), which tries out five filters for each row, for a file that is as
 * large: where the colours change little from row to row, the difference to the row above serves as well as the best of
 * them. Pixels and resolution read are the same.
 */
QByteArray png(const QImage &image);

} // namespace gamutviewer

#endif
