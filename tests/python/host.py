# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""A host of the package, whose types are checked."""

from typing import Optional

import numpy as np
import numpy.typing as npt

import ceiechart


def report(measured: npt.NDArray[np.float64], white: tuple[float, float]) -> list[str]:
    target = ceiechart.published_gamut("Rec.709")
    kelvin, duv = ceiechart.color_temperature(white)
    coverage: ceiechart.Coverage = ceiechart.gamut_coverage(
        measured[:, :, 1:], target.primaries, ceiechart.Diagram.CIE_1931
    )
    wall = ceiechart.corrections(measured, target.primaries, target.white)
    largest: Optional[ceiechart.WallWhite] = wall.largest_white
    if wall.fault is not ceiechart.WallFault.NONE or largest is None:
        return [wall.fault.name]
    return [
        f"{float(kelvin):.0f} K, {float(duv):.4f}",
        f"{coverage.coverage.min():.1%}",
        f"{largest.luminance:.0f} cd/m2, cabinet {largest.cabinet}",
        *(fault.name for fault in wall.faults),
    ]
