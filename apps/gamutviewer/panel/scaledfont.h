// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_SCALEDFONT_H
#define GAMUTVIEWER_SCALEDFONT_H

#include <QFont>

#include <algorithm>

namespace gamutviewer {

/*! \brief \a font with \a factor times its size, which may be in points or in pixels. */
inline QFont scaledFont(QFont font, double factor)
{
    if (font.pointSizeF() > 0.0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
    }
    return font;
}

} // namespace gamutviewer

#endif
