// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef SUPPORTEDFILLKERNELS_H
#define SUPPORTEDFILLKERNELS_H

#include <ceiechart/diagram/fillkernels_p.h>

#include <vector>

/*! \brief The kernels of the fill that this processor supports, from the fastest to the plain loop. */
inline std::vector<const ceiechart::FillKernel *> supportedFillKernels()
{
    std::vector<const ceiechart::FillKernel *> kernels;
    for (int i = 0; i < ceiechart::fillKernelCount; ++i) {
        if (ceiechart::fillKernels[i].supported()) {
            kernels.push_back(&ceiechart::fillKernels[i]);
        }
    }
    return kernels;
}

#endif
