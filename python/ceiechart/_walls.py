# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""LED walls: what all cabinets can show, and the correction of each."""

import enum
from typing import NamedTuple, Optional

import numpy as np
import numpy.typing as npt

from ceiechart import _companions
from ceiechart._arrays import FloatArray, exactly, floats, number
from ceiechart._color import Diagram, number_of

IndexArray = npt.NDArray[np.int64]


class CommonShape(enum.Enum):
    """What the cabinets of a wall have in common."""

    NOT_KNOWN = 0
    """there is no cabinet, or there are invalid ones"""
    EMPTY = 1
    """nothing"""
    POINT = 2
    """one chromaticity: the gamuts touch"""
    LINE = 3
    """the chromaticities on a line"""
    AREA = 4
    """an area"""


class FitFault(enum.Enum):
    """What keeps a target from being fitted."""

    NONE = 0
    """nothing"""
    NOT_FINITE = 1
    """a colour of the wish is infinite or NaN"""
    NO_COMMON_AREA = 2
    """the cabinets have no area in common"""
    WHITE_OUTSIDE = 3
    """not all cabinets can show the white"""
    WHITE_OUTSIDE_OF_WISH = 4
    """the white is not inside of the wished triangle"""
    NO_TRIANGLE = 5
    """what is left is nearly a line"""


class WallFault(enum.Enum):
    """What keeps a whole wall from being corrected."""

    NONE = 0
    """nothing"""
    NOT_FINITE = 1
    """a colour of the target or the luminance is infinite, NaN, or has no chromaticity"""
    NEARLY_SINGULAR = 2
    """the primaries of the target lie too close to a line"""
    WHITE_OUTSIDE = 3
    """the white of the target is not a mixture of its primaries"""
    NO_LUMINANCE = 4
    """the luminance is not above 0, or none was given and no cabinet can show the white"""


class CabinetFault(enum.Enum):
    """What keeps a cabinet from being corrected."""

    NONE = 0
    """nothing"""
    NOT_FINITE = 1
    """a colour is infinite or NaN, or has light and y = 0"""
    NO_LIGHT = 2
    """a primary has no more luminance than the black"""
    NEARLY_SINGULAR = 3
    """the primaries lie too close to a line"""


class CommonGamut(NamedTuple):
    """The chromaticities that all cabinets of a wall can show."""

    shape: CommonShape
    """what they have in common"""
    corners: FloatArray
    """CIE 1931 x, y of the corners, counter-clockwise, of the shape (n, 2): two of a line, one of a point"""
    cabinets: IndexArray
    """for each corner of an area the cabinet whose side leads from it to the next, of the shape (n,)"""
    excluding: IndexArray
    """with :attr:`CommonShape.EMPTY` two or three cabinets that have nothing in common"""
    invalid: IndexArray
    """with :attr:`CommonShape.NOT_KNOWN` the cabinets with a number that is infinite, NaN, or beyond 100"""


class Fit(NamedTuple):
    """A target inside of the common gamut. With a fault, the other members have no meaning."""

    fault: FitFault
    """why there is no target"""
    primaries: FloatArray
    """CIE 1931 x, y of red, green and blue, of the shape (3, 2)"""
    white: FloatArray
    """CIE 1931 x, y of the white, of the shape (2,)"""
    shares: FloatArray
    """distance of each primary from the white as a part of the wished one, of the shape (3,)"""
    limits: IndexArray
    """the cabinet that limits each primary, or -1, of the shape (3,)"""
    white_moved: float
    """distance in u', v' between the wished white and this one"""
    coverage_xy: float
    """the part of the wish that is left, by its area in x, y"""
    coverage_uv: float
    """the part of the wish that is left, by its area in u', v'"""


class WallWhite(NamedTuple):
    """The largest luminance of a white that all cabinets reach."""

    luminance: float
    """in the unit of the cabinets"""
    cabinet: int
    """the cabinet that limits it"""
    primary: int
    """the primary of that cabinet that is at full drive: 0 is red, 1 green, 2 blue"""


class Corrections(NamedTuple):
    """The corrections of a wall; n is the number of cabinets."""

    fault: WallFault
    """why there are no matrices at all"""
    target: FloatArray
    """Y, x, y of red, green, blue and white that the matrices are for, of the shape (4, 3)"""
    largest_white: Optional[WallWhite]
    """the largest luminance of the white that all cabinets reach but those in *without*"""
    without: IndexArray
    """the cabinets that cannot show the white at any luminance"""
    faults: tuple[CabinetFault, ...]
    """why a cabinet has no matrix, n of them"""
    matrices: FloatArray
    """linear drives for linear content, of the shape (n, 3, 3); NaN for a cabinet without one"""
    shown: FloatArray
    """Y, x, y of red, green, blue and white with the correction, of the shape (n, 4, 3); NaN without a matrix"""
    uncorrected: FloatArray
    """Y, x, y of each cabinet at full drive without a correction, of the shape (n, 3); NaN with a fault"""
    largest: FloatArray
    """the largest luminance of the target's white for each cabinet, of the shape (n,); NaN where it has none"""


def common_gamut(cabinets: npt.ArrayLike) -> CommonGamut:
    """What all cabinets of a wall can show.

    :param cabinets: CIE 1931 x, y of the primaries of each cabinet, of the shape (n, 3, 2).
    """
    shape, corners, sides, excluding, invalid = _companions.common_gamut(_wall(cabinets, (3, 2)))
    return CommonGamut(CommonShape(shape), corners, sides, excluding, invalid)


def fitted_target(cabinets: npt.ArrayLike, primaries: npt.ArrayLike, white: npt.ArrayLike) -> Fit:
    """The largest target whose colours have the hues of a wished one and that all cabinets can show.

    The white stays; each primary moves towards it only as far as needed.

    :param cabinets: CIE 1931 x, y of the primaries of each cabinet, of the shape (n, 3, 2).
    :param primaries: CIE 1931 x, y of the wished red, green and blue, of the shape (3, 2).
    :param white: CIE 1931 x, y of the wished white, of the shape (2,).
    """
    return _fit(cabinets, primaries, white, None)


def largest_target(
    cabinets: npt.ArrayLike, primaries: npt.ArrayLike, white: npt.ArrayLike, diagram: Optional[Diagram] = None
) -> Fit:
    """The triangle with the largest area that all cabinets can show.

    :param cabinets: CIE 1931 x, y of the primaries of each cabinet, of the shape (n, 3, 2).
    :param primaries: the wished red, green and blue, which decide what each corner is called.
    :param white: CIE 1931 x, y of the wished white; outside of the triangle the nearest is taken.
    :param diagram: where the area is measured: :attr:`Diagram.CIE_1976` if not stated.
    """
    return _fit(cabinets, primaries, white, number_of(Diagram.CIE_1976 if diagram is None else diagram))


def corrections(
    cabinets: npt.ArrayLike,
    primaries: npt.ArrayLike,
    white: npt.ArrayLike,
    blacks: Optional[npt.ArrayLike] = None,
    luminance: Optional[float] = None,
) -> Corrections:
    """The matrices with which all cabinets of a wall show the same target.

    With the linear levels of the content, from 0 to 1, as a column, the linear drives of cabinet i are
    ``matrices[i] @ levels``. A cabinet is additive (IEC 61966-4). Entries below 0 tell that it cannot show the
    primary of the target, entries above 1 that it does not have the luminance for it.

    :param cabinets: Y, x, y of red, green and blue of each cabinet at full drive, of the shape (n, 3, 3).
    :param primaries: CIE 1931 x, y of the target's red, green and blue, of the shape (3, 2).
    :param white: CIE 1931 x, y of the target's white, of the shape (2,).
    :param blacks: Y, x, y of each cabinet at drive 0, of the shape (n, 3); without them blacks have no light.
    :param luminance: that of the target's white, in the unit of the cabinets. Without it the largest that all cabinets
        reach which can show the white.
    """
    target = np.concatenate([exactly(primaries, "primaries", (3, 2)), exactly(white, "white", (2,))[np.newaxis]])
    wall = _wall(cabinets, (3, 3))
    black = None if blacks is None else _wall(blacks, (3,), "blacks")
    if black is not None and len(black) != len(wall):
        raise ValueError(f"blacks: there are {len(black)} of them for {len(wall)} cabinets")
    fault, shown_target, largest, without, faults, matrices, shown, uncorrected, luminances = _companions.corrections(
        wall, black, target, number(luminance, "luminance")
    )
    return Corrections(
        WallFault(fault),
        shown_target,
        None if largest is None else WallWhite(*largest),
        without,
        tuple(CabinetFault(one) for one in faults),
        matrices,
        shown,
        uncorrected,
        luminances,
    )


def _wall(values: npt.ArrayLike, shape: tuple[int, ...], name: str = "cabinets") -> FloatArray:
    array = floats(values, name, shape)
    if array.ndim != len(shape) + 1:
        raise ValueError(f"{name}: an array of {len(shape) + 1} dimensions is needed, not of the shape {array.shape}")
    return np.ascontiguousarray(array)


def _fit(
    cabinets: npt.ArrayLike, primaries: npt.ArrayLike, white: npt.ArrayLike, diagram: Optional[int]
) -> Fit:
    colors = np.concatenate([exactly(primaries, "primaries", (3, 2)), exactly(white, "white", (2,))[np.newaxis]])
    wish = np.concatenate([np.ones((4, 1)), colors], axis=1)
    fault, target, shares, limits, moved, xy, uv = _companions.fit(_wall(cabinets, (3, 2)), wish, diagram)
    return Fit(
        FitFault(fault),
        target[:3, 1:].copy(),
        target[3, 1:].copy(),
        np.asarray(shares, dtype=np.float64),
        np.asarray(limits, dtype=np.int64),
        moved,
        xy,
        uv,
    )
