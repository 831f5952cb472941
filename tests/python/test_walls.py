# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Corrections and common gamuts against published matrices and against numpy's own linear algebra."""

import unittest

import numpy as np

import ceiechart
from ceiechart import CabinetFault, CommonShape, Diagram, FitFault, WallFault
from ceiechart._arrays import FloatArray

REC709 = ceiechart.published_gamut("Rec.709")
REC2020 = ceiechart.published_gamut("Rec.2020")


def tristimulus(colors: FloatArray) -> FloatArray:
    """X, Y, Z of Y, x, y."""
    luminance, x, y = np.moveaxis(colors, -1, 0)
    return np.stack([x * luminance / y, luminance, (1 - x - y) * luminance / y], axis=-1)


def wall(count: int, seed: int) -> FloatArray:
    """Cabinets with measured primaries that differ a little."""
    random = np.random.default_rng(seed)
    typical = np.array([[240, 0.700, 0.297], [634, 0.190, 0.715], [126, 0.133, 0.065]])
    spread = np.array([[20, 0.004, 0.002], [40, 0.01, 0.01], [15, 0.003, 0.01]])
    return np.asarray(typical + spread * random.uniform(-1, 1, (count, 3, 3)))


class CorrectionsTest(unittest.TestCase):
    def test_conversion_from_bt709_to_bt2020(self) -> None:
        # Recommendation ITU-R BT.2087-0: the matrix of linear levels, which is the correction of a display with the
        # primaries of BT.2020 for a target of BT.709 with the same white.
        cabinet = np.concatenate([REC2020.luminances[:, np.newaxis], REC2020.primaries], axis=1)
        found = ceiechart.corrections([cabinet], REC709.primaries, REC709.white, luminance=1.0)
        published = [[0.6274, 0.3293, 0.0433], [0.0691, 0.9195, 0.0114], [0.0164, 0.0880, 0.8956]]
        self.assertIs(found.fault, WallFault.NONE)
        np.testing.assert_allclose(found.matrices[0], published, rtol=0, atol=5.001e-5)

    def test_against_linear_algebra(self) -> None:
        cabinets = wall(50, 1)
        blacks = np.column_stack([np.linspace(0.1, 0.9, 50), np.full(50, 0.30), np.full(50, 0.31)])
        found = ceiechart.corrections(cabinets, REC709.primaries, REC709.white, blacks, 500.0)
        self.assertEqual(set(found.faults), {CabinetFault.NONE})
        white = tristimulus(np.concatenate([[500.0], REC709.white]))
        for cabinet, black, matrix in zip(cabinets, blacks, found.matrices):
            dark = tristimulus(black)
            columns = (tristimulus(cabinet) - dark).T
            # The primaries P of the target have its chromaticities, and W = K + the sum of P - K.
            unit = tristimulus(np.concatenate([np.ones((3, 1)), REC709.primaries], axis=1)).T
            luminances = np.linalg.solve(unit, white + 2 * dark)
            expected = np.linalg.solve(columns, unit * luminances - dark[:, np.newaxis])
            np.testing.assert_allclose(matrix, expected, rtol=0, atol=1e-12)
            light = dark + columns @ matrix @ np.ones(3)
            np.testing.assert_allclose(light, white, rtol=1e-12)

    def test_largest_white(self) -> None:
        cabinets = wall(20, 2)
        found = ceiechart.corrections(cabinets, REC709.primaries, REC709.white)
        assert found.largest_white is not None
        self.assertEqual(found.largest_white.luminance, found.largest.min())
        self.assertEqual(found.largest_white.cabinet, found.largest.argmin())
        self.assertAlmostEqual(float(found.target[3, 0]), found.largest_white.luminance)
        # That primary of that cabinet is at full drive, and no other drive is above.
        drives = found.matrices.sum(axis=-1)
        self.assertAlmostEqual(drives[found.largest_white.cabinet, found.largest_white.primary], 1.0)
        self.assertLessEqual(drives.max(), 1 + 1e-9)
        np.testing.assert_allclose(found.shown[:, 3], np.tile(found.target[3], (20, 1)), rtol=1e-9)
        # Without a correction the cabinets show all they have.
        np.testing.assert_allclose(found.uncorrected[:, 0], cabinets[:, :, 0].sum(axis=1), rtol=1e-12)

    def test_faults(self) -> None:
        cabinets = wall(4, 3)
        cabinets[1, 0, 1] = np.nan
        cabinets[2, 1, 0] = 0
        cabinets[3, 1] = cabinets[3, 0]
        found = ceiechart.corrections(cabinets, REC709.primaries, REC709.white, luminance=300.0)
        expected = [CabinetFault.NONE, CabinetFault.NOT_FINITE, CabinetFault.NO_LIGHT, CabinetFault.NEARLY_SINGULAR]
        self.assertEqual(list(found.faults), expected)
        self.assertTrue(np.isfinite(found.matrices[0]).all())
        for array in (found.matrices[1:], found.shown[1:], found.uncorrected[1:], found.largest[1:]):
            self.assertTrue(np.isnan(array).all())


class CommonGamutTest(unittest.TestCase):
    def test_two_gamuts(self) -> None:
        # Rec.709 lies inside of Rec.2020.
        found = ceiechart.common_gamut([REC2020.primaries, REC709.primaries])
        self.assertIs(found.shape, CommonShape.AREA)
        # The corners begin with the one with the least x: blue, then counter-clockwise.
        np.testing.assert_allclose(found.corners, REC709.primaries[[2, 0, 1]], rtol=0, atol=1e-12)
        np.testing.assert_array_equal(found.cabinets, [1, 1, 1])

    def test_nothing_in_common(self) -> None:
        away = REC709.primaries + [0.0, 1.0]
        found = ceiechart.common_gamut([REC2020.primaries, REC709.primaries, away])
        self.assertIs(found.shape, CommonShape.EMPTY)
        self.assertIn(2, found.excluding)
        self.assertEqual(len(found.corners), 0)

    def test_fit(self) -> None:
        found = ceiechart.fitted_target([REC709.primaries], REC2020.primaries, REC2020.white)
        self.assertIs(found.fault, FitFault.NONE)
        np.testing.assert_array_equal(found.limits, [0, 0, 0])
        # Each primary stays on the line from the white to that of the wish, and inside.
        expected = found.white + found.shares[:, np.newaxis] * (REC2020.primaries - found.white)
        np.testing.assert_allclose(found.primaries, expected, atol=1e-9)
        coverage = ceiechart.gamut_coverage(found.primaries, REC709.primaries, Diagram.CIE_1931)
        self.assertAlmostEqual(float(coverage.common_area), float(coverage.area), 9)

    def test_largest(self) -> None:
        found = ceiechart.largest_target([REC709.primaries, REC2020.primaries], REC2020.primaries, REC2020.white)
        self.assertIs(found.fault, FitFault.NONE)
        np.testing.assert_allclose(found.primaries, REC709.primaries, atol=1e-12)


if __name__ == "__main__":
    unittest.main()
