# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Single colours and the white of three primaries."""

import enum

import numpy as np
import numpy.typing as npt

from ceiechart import _companions
from ceiechart._arrays import FloatArray, floats, rows, together


class Diagram(enum.Enum):
    """A chromaticity diagram; d is -2x + 12y + 3."""

    CIE_1931 = 0
    """x, y (ISO/CIE 11664-1)"""
    CIE_1976 = 1
    """u' = 4x / d, v' = 9y / d (ISO 11664-5:2009)"""
    CIE_1960 = 2
    """u = 4x / d, v = 6y / d, in which colour temperature is defined (CIE 15:2018, 9.5)"""


def number_of(diagram: Diagram) -> int:
    """The number by which the libraries know *diagram*."""
    if not isinstance(diagram, Diagram):
        raise ValueError(f"diagram: a ceiechart.Diagram is needed, not {diagram!r}")
    return diagram.value


def color_temperature(xy: npt.ArrayLike) -> tuple[FloatArray, FloatArray]:
    """Correlated colour temperatures and distances from the Planckian locus.

    The temperature is that of the nearest point of the locus in the CIE 1960 u, v diagram (CIE 15:2018, 9.5). The locus
    is that of Planck's radiator with c2 = 1.438776877e-2 m K (CODATA 2018), summed with the CIE 1931 colour-matching
    functions from 360 nm to 830 nm at 1 nm. With the older c2 = 1.4388e-2 m K temperatures are 16 ppm higher.

    The error is at most 6.3e-6 K from 1500 K to 40 000 K and at most 2e-4 K up to 100 000 K, within 0.05 of the locus.

    :param xy: CIE 1931 x, y, of the shape (..., 2).
    :return: the temperatures in kelvin, from 1000 to 100 000, and Duv, the distances in u, v, positive above the locus
        (towards green); both of the shape (...). Both are NaN where y is not above 0 and up to 1, where x is not from -1
        to 1, and where one of them is infinite or NaN.
    """
    array = floats(xy, "xy", (2,))
    kelvin, duv = _companions.color_temperature(rows(array, 1))
    return kelvin.reshape(array.shape[:-1]), duv.reshape(array.shape[:-1])


def white_point(primaries: npt.ArrayLike) -> FloatArray:
    """The additive mixture of three primaries.

    :param primaries: Y, x, y of red, green and blue, of the shape (..., 3, 3).
    :return: Y, x, y of the white, of the shape (..., 3). NaN where there is no light, where a primary with light has
        y = 0, and where a number is infinite or NaN.
    """
    array = floats(primaries, "primaries", (3, 3))
    return _companions.white_point(rows(array, 2)).reshape(array.shape[:-1])


def primary_luminances(primaries: npt.ArrayLike, white: npt.ArrayLike) -> FloatArray:
    """The luminances with which three primaries mix to a white: the inverse of :func:`white_point`.

    :param primaries: CIE 1931 x, y of red, green and blue, of the shape (..., 3, 2).
    :param white: Y, x, y of the white, of the shape (..., 3); the leading dimensions of both are broadcast.
    :return: Y of red, green and blue in the unit of the white, of the shape (..., 3). Some are negative if the white
        lies outside of the triangle. NaN where the primaries lie on a line, where a y is 0, and where a number is
        infinite or NaN.
    """
    corners, whites, lead = together(floats(primaries, "primaries", (3, 2)), 2, floats(white, "white", (3,)), 1)
    return _companions.primary_luminances(rows(corners, 2), rows(whites, 1)).reshape(lead + (3,))


def primaries_to_xyz(primaries: npt.ArrayLike, white: npt.ArrayLike) -> FloatArray:
    """The matrices that convert linear red, green and blue to tristimulus values (SMPTE RP 177:1993).

    The columns are X, Y, Z of the primaries, with the luminances with which they mix to a white with Y = 1.

    :param primaries: CIE 1931 x, y of red, green and blue, of the shape (..., 3, 2).
    :param white: CIE 1931 x, y of the white, of the shape (..., 2); the leading dimensions of both are broadcast.
    :return: the matrices, of the shape (..., 3, 3); NaN where :func:`primary_luminances` is.
    """
    corners, whites, lead = together(floats(primaries, "primaries", (3, 2)), 2, floats(white, "white", (2,)), 1)
    luminances = primary_luminances(corners, np.concatenate([np.ones(lead + (1,)), whites], axis=-1))
    x, y = corners[..., 0], corners[..., 1]
    with np.errstate(divide="ignore", invalid="ignore"):
        matrices = np.stack([x * luminances / y, luminances, (1 - x - y) * luminances / y], axis=-2)
    return np.asarray(matrices, dtype=np.float64)


def to_diagram(xy: npt.ArrayLike, diagram: Diagram) -> FloatArray:
    """The points of *diagram* for CIE 1931 x, y, of the shape (..., 2). Infinite or NaN where d is 0."""
    array = floats(xy, "xy", (2,))
    return _companions.to_diagram(rows(array, 1), number_of(diagram)).reshape(array.shape)


def from_diagram(points: npt.ArrayLike, diagram: Diagram) -> FloatArray:
    """CIE 1931 x, y of *points* of *diagram*, of the shape (..., 2): the inverse of :func:`to_diagram`."""
    array = floats(points, "points", (2,))
    return _companions.from_diagram(rows(array, 1), number_of(diagram)).reshape(array.shape)
