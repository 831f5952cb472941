# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Published gamuts, areas and coverage."""

from typing import NamedTuple, Optional

import numpy.typing as npt

from ceiechart import _companions
from ceiechart._arrays import FloatArray, floats, rows, together
from ceiechart._color import Diagram, number_of


class Gamut(NamedTuple):
    """A published gamut."""

    name: str
    """for example ``"Rec.2020"``"""
    primaries: FloatArray
    """CIE 1931 x, y of red, green and blue, of the shape (3, 2)"""
    white: FloatArray
    """CIE 1931 x, y of the white, of the shape (2,)"""
    luminances: FloatArray
    """Y of red, green and blue with which they mix to a white with Y = 1, of the shape (3,)"""
    source: str
    """the document that defines primaries and white"""


class Coverage(NamedTuple):
    """The comparison of gamuts with standards. All arrays have the shape of the broadcast leading dimensions."""

    area: FloatArray
    """area of the gamut in square units of the diagram"""
    standard_area: FloatArray
    """area of the standard"""
    common_area: FloatArray
    """area that both have in common"""
    coverage: FloatArray
    """share of the standard that lies in the gamut, from 0 to 1; 0 if the standard has no area"""
    area_ratio: FloatArray
    """area of the gamut divided by that of the standard; 0 if the standard has no area"""


def _gamut(published: tuple[str, str, FloatArray]) -> Gamut:
    name, source, colors = published
    return Gamut(name, colors[:3, 1:].copy(), colors[3, 1:].copy(), colors[:3, 0].copy(), source)


def published_gamuts() -> list[Gamut]:
    """All gamuts of published standards and colour spaces that the library knows."""
    return [_gamut(published) for published in _companions.published_gamuts()]


def published_gamut(name: str) -> Gamut:
    """The published gamut that *name* means, without regard to case, spaces and punctuation: ``"BT.709"``, ``"sRGB"``.

    A name that is unknown or means several gamuts, as ``"P3"`` does, raises ``ValueError``.
    """
    if not isinstance(name, str):
        raise ValueError(f"name: a string is needed, not {name!r}")
    found = [_gamut(published) for published in _companions.published_gamuts_named(name)]
    if len(found) == 1:
        return found[0]
    known = ", ".join(gamut.name for gamut in (found or published_gamuts()))
    reason = "means several gamuts" if found else "is no published gamut"
    raise ValueError(f"name: {name!r} {reason}: {known}")


def gamut_coverage(
    gamut: npt.ArrayLike, standard: npt.ArrayLike, diagram: Optional[Diagram] = None
) -> Coverage:
    """The areas of gamuts and of standards, and how much of the standards the gamuts cover.

    A gamut is the triangle of its primaries; their order does not matter. One with a number that is infinite or NaN, or
    with primaries on a line, has the area 0 and nothing in common with any other.

    :param gamut: CIE 1931 x, y of the primaries, of the shape (..., 3, 2).
    :param standard: the same of the standards; the leading dimensions of both are broadcast.
    :param diagram: where the areas are measured: :attr:`Diagram.CIE_1976` if not stated.
    """
    on = number_of(Diagram.CIE_1976 if diagram is None else diagram)
    gamuts, standards, lead = together(floats(gamut, "gamut", (3, 2)), 2, floats(standard, "standard", (3, 2)), 2)
    values = _companions.coverage(rows(gamuts, 2), rows(standards, 2), on)
    return Coverage(*(values[:, i].reshape(lead).copy() for i in range(5)))
