// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DIAGRAM_FILLKERNELS_P_H
#define CEIECHART_DIAGRAM_FILLKERNELS_P_H

namespace ceiechart {

/*!
 * \brief A run of pixels in a row, on which one amount is the largest and none is below 0 or above 1.
 */
struct PixelRun {
    static constexpr int fractionBits = 15; //!< of a channel that a kernel rounds

    float amounts[3]; //!< of red, green and blue, at the first pixel
    float steps[3]; //!< from pixel to pixel
    int largest; //!< the index of the largest amount, which is at least 1/3
    int margin; //!< by which a channel must miss a rounding boundary to be decided, in its last bit; below 2^14
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
     * \brief Colours \a count pixels, as a QRgb each, and lists in \a undecided, which has room for all, those that
     * must be computed in double precision, in ascending order.
     * \return how many are undecided
     */
    int (*decide)(const PixelRun &run, int count, unsigned *colors, int *undecided);
};

/*! \brief All kernels, from the fastest to the plain loop, which every processor supports. */
extern const FillKernel fillKernels[];
extern const int fillKernelCount;
/*! \brief The fastest kernel that the processor supports. */
const FillKernel &fastestFillKernel();

} // namespace ceiechart

#endif
