/* SPDX-FileCopyrightText: 2026 the ceiechart authors */
/* SPDX-License-Identifier: MIT */
#ifndef CEIECHART_TESTS_COMPANIONS_COLORTEMPERATURECINTERFACE_H
#define CEIECHART_TESTS_COMPANIONS_COLORTEMPERATURECINTERFACE_H

#ifdef __cplusplus
extern "C" {
#endif

/* What a program in C gets from each function of the library. */
double temperatureFromC(double x, double y, double *duv);
void whiteFromC(const double primaries[9], double white[3]);
void luminancesFromC(const double chromaticities[6], const double white[3], double luminances[3]);

#ifdef __cplusplus
}
#endif

#endif
