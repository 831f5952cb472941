// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_FILLKERNELS_P_H
#define CEIECHART_DIAGRAM_FILLKERNELS_P_H

namespace ceiechart {

/*!
 * \brief A run of pixels in a row: the amounts at its first pixel, their steps from pixel to pixel, and the margin with
 * which a channel must miss a rounding boundary to be decided.
 */
struct PixelRun {
    float red, green, blue;
    float redStep, greenStep, blueStep;
    float margin;
};

/*!
 * \brief A function that colours runs of pixels, and whether the processor supports it; see horseshoefill.cpp.
 *
 * All kernels give the same bits. The fill uses the fastest one that the processor supports.
 */
struct FillKernel {
    const char *name;
    bool (*supported)();
    /*!
     * \brief Colours \a count pixels, as a QRgb each, and marks in \a undecided those that must be computed in double
     * precision.
     * \return whether any pixel is undecided
     */
    bool (*decide)(const PixelRun &run, int count, unsigned *colors, unsigned *undecided);
};

/*! \brief All kernels, from the fastest to the plain loop, which every processor supports. */
extern const FillKernel fillKernels[];
extern const int fillKernelCount;
/*! \brief The fastest kernel that the processor supports. */
const FillKernel &fastestFillKernel();

} // namespace ceiechart

#endif
