// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_POINTF_H
#define CEIECHART_MODEL_POINTF_H

/*! \brief A chromaticity in single precision, the precision of the scenes' containment tests. */
struct PointF {
    float x = 0.0F; //!< CIE 1931 x, unitless
    float y = 0.0F; //!< CIE 1931 y, unitless
};

#endif // CEIECHART_MODEL_POINTF_H
