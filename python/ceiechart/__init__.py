# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Colour science of displays and LED walls, on numpy arrays.

The package calls the companion libraries ``colortemperature`` and ``gamutmodel``; it computes nothing by itself.

Chromaticities are CIE 1931 x, y (2 degree observer, ISO/CIE 11664-1) unless a function says otherwise. Colours with a
luminance are Y, x, y. Luminances can have any unit, but all of a call need the same. Primaries are always in the order
red, green, blue.

Arguments are whatever numpy makes an array of real numbers from; results are arrays of double precision. An array of the
wrong shape, or of something that is no number, raises ``ValueError``. Numbers for which there is no result, such as NaN
or a y of 0, raise nothing: the result is NaN, or an enumeration says what is wrong. Arrays may be empty.

    >>> import ceiechart
    >>> kelvin, duv = ceiechart.color_temperature([0.3127, 0.3290])
    >>> print(f"{kelvin:.1f} K, {duv:.4f}")
    6504.2 K, 0.0032
"""

from ceiechart._color import (
    Diagram,
    color_temperature,
    from_diagram,
    primaries_to_xyz,
    primary_luminances,
    to_diagram,
    white_point,
)
from ceiechart._gamuts import (
    Coverage,
    Gamut,
    gamut_coverage,
    published_gamut,
    published_gamuts,
)
from ceiechart._version import __version__
from ceiechart._walls import (
    CabinetFault,
    CommonGamut,
    CommonShape,
    Corrections,
    FitFault,
    Fit,
    WallFault,
    WallWhite,
    common_gamut,
    corrections,
    fitted_target,
    largest_target,
)

__all__ = [
    "CabinetFault",
    "CommonGamut",
    "CommonShape",
    "Corrections",
    "Coverage",
    "Diagram",
    "Fit",
    "FitFault",
    "Gamut",
    "WallFault",
    "WallWhite",
    "__version__",
    "color_temperature",
    "common_gamut",
    "corrections",
    "fitted_target",
    "from_diagram",
    "gamut_coverage",
    "largest_target",
    "primaries_to_xyz",
    "primary_luminances",
    "published_gamut",
    "published_gamuts",
    "to_diagram",
    "white_point",
]
