// SPDX-License-Identifier: MIT
#ifndef CEIECHART_MODEL_POINTF_H
#define CEIECHART_MODEL_POINTF_H

/*! \brief A point in single precision: the form in which a triangle's vertices reach polygon code. */
struct PointF {
    float x = 0.0F; //!< unitless
    float y = 0.0F; //!< unitless
};

#endif // CEIECHART_MODEL_POINTF_H
