# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""What invalid and unusual input gives: the documented result or ValueError, and never the end of the process."""

import itertools
import unittest
from typing import Any, Callable

import numpy as np

import ceiechart
from ceiechart import CommonShape, Diagram, FitFault, WallFault

SRGB = ceiechart.published_gamut("sRGB")
CABINET = np.concatenate([SRGB.luminances[:, np.newaxis], SRGB.primaries], axis=1)
NO_RESULT = [np.nan, np.inf, -np.inf]


class ShapesTest(unittest.TestCase):
    def test_wrong_shapes_and_types(self) -> None:
        functions: list[Callable[[Any], object]] = [
            ceiechart.color_temperature,
            ceiechart.white_point,
            lambda wrong: ceiechart.primary_luminances(wrong, [1, 0.3, 0.3]),
            lambda wrong: ceiechart.primary_luminances(SRGB.primaries, wrong),
            lambda wrong: ceiechart.primaries_to_xyz(wrong, SRGB.white),
            lambda wrong: ceiechart.primaries_to_xyz(SRGB.primaries, wrong),
            lambda wrong: ceiechart.to_diagram(wrong, Diagram.CIE_1976),
            lambda wrong: ceiechart.from_diagram(wrong, Diagram.CIE_1976),
            lambda wrong: ceiechart.gamut_coverage(wrong, SRGB.primaries),
            lambda wrong: ceiechart.gamut_coverage(SRGB.primaries, wrong),
            ceiechart.common_gamut,
            lambda wrong: ceiechart.fitted_target(wrong, SRGB.primaries, SRGB.white),
            lambda wrong: ceiechart.fitted_target([SRGB.primaries], wrong, SRGB.white),
            lambda wrong: ceiechart.largest_target([SRGB.primaries], SRGB.primaries, wrong),
            lambda wrong: ceiechart.corrections(wrong, SRGB.primaries, SRGB.white),
            lambda wrong: ceiechart.corrections([CABINET], wrong, SRGB.white),
            lambda wrong: ceiechart.corrections([CABINET], SRGB.primaries, wrong),
            lambda wrong: ceiechart.corrections([CABINET], SRGB.primaries, SRGB.white, wrong),
            lambda wrong: ceiechart.corrections([CABINET], SRGB.primaries, SRGB.white, None, wrong),
        ]
        wrongs: list[object] = [
            "text",
            [],
            [1, 2, 3, 4],
            [[1, 2], [3]],
            [[1j, 2j]],
            np.zeros((2, 5)),
            np.zeros((3, 2, 4)),
            {"x": 1},
            ["0.3", "0.3"],
            np.array(["2026-01-01", "2026-01-02"], dtype="datetime64[D]"),
            object(),
        ]
        for number, function in enumerate(functions):
            for wrong in wrongs:
                with self.subTest(function=number, wrong=str(wrong)), self.assertRaises(ValueError):
                    function(wrong)

    def test_arrays_that_do_not_go_together(self) -> None:
        with self.assertRaisesRegex(ValueError, "do not go together"):
            ceiechart.gamut_coverage([SRGB.primaries] * 2, [SRGB.primaries] * 3)
        with self.assertRaisesRegex(ValueError, "2 of them for 1 cabinets"):
            ceiechart.corrections([CABINET], SRGB.primaries, SRGB.white, np.zeros((2, 3)))

    def test_what_is_no_diagram(self) -> None:
        wrong: Any
        for wrong in (1, "CIE_1976", 7):
            with self.assertRaisesRegex(ValueError, "diagram"):
                ceiechart.gamut_coverage(SRGB.primaries, SRGB.primaries, wrong)
            with self.assertRaisesRegex(ValueError, "diagram"):
                ceiechart.to_diagram([0.3, 0.3], wrong)

    def test_names(self) -> None:
        wrong: Any = 709
        with self.assertRaises(ValueError):
            ceiechart.published_gamut(wrong)
        with self.assertRaises(ValueError):
            ceiechart.published_gamut("")

    def test_the_compiled_module_checks_too(self) -> None:
        from ceiechart import _companions

        with self.assertRaises(ValueError):
            _companions.color_temperature(np.zeros(3))
        with self.assertRaises(ValueError):
            _companions.coverage(np.zeros((2, 3, 2)), np.zeros((1, 3, 2)), 0)
        with self.assertRaises(ValueError):
            _companions.coverage(np.zeros((1, 3, 2)), np.zeros((1, 3, 2)), 3)
        with self.assertRaises(ValueError):
            _companions.fit(np.zeros((1, 3, 2)), np.zeros((3, 3)), None)
        with self.assertRaises(ValueError):
            _companions.corrections(np.zeros((1, 3, 3)), np.zeros((2, 3)), np.zeros((4, 2)), None)

    def test_empty_arrays(self) -> None:
        kelvin, duv = ceiechart.color_temperature(np.empty((0, 2)))
        self.assertEqual((kelvin.shape, duv.shape), ((0,), (0,)))
        self.assertEqual(ceiechart.color_temperature(np.empty((4, 0, 2)))[0].shape, (4, 0))
        self.assertEqual(ceiechart.white_point(np.empty((0, 3, 3))).shape, (0, 3))
        self.assertEqual(ceiechart.primaries_to_xyz(np.empty((0, 3, 2)), SRGB.white).shape, (0, 3, 3))
        self.assertEqual(ceiechart.to_diagram(np.empty((0, 2)), Diagram.CIE_1976).shape, (0, 2))
        self.assertEqual(ceiechart.gamut_coverage(np.empty((0, 3, 2)), SRGB.primaries).coverage.shape, (0,))
        self.assertIs(ceiechart.common_gamut(np.empty((0, 3, 2))).shape, CommonShape.NOT_KNOWN)
        fit = ceiechart.fitted_target(np.empty((0, 3, 2)), SRGB.primaries, SRGB.white)
        self.assertIs(fit.fault, FitFault.NO_COMMON_AREA)
        wall = ceiechart.corrections(np.empty((0, 3, 3)), SRGB.primaries, SRGB.white)
        self.assertIs(wall.fault, WallFault.NO_LUMINANCE)
        self.assertEqual(wall.matrices.shape, (0, 3, 3))
        self.assertEqual(wall.faults, ())

    def test_scalars_of_one_color(self) -> None:
        kelvin, duv = ceiechart.color_temperature((0.3127, 0.3290))
        self.assertEqual((kelvin.shape, duv.shape), ((), ()))
        self.assertEqual(f"{kelvin:.2f}", "6504.24")

    def test_layout_does_not_matter(self) -> None:
        grid = np.stack(np.meshgrid(np.linspace(0.2, 0.5, 7), np.linspace(0.2, 0.5, 5)), axis=-1)
        expected = ceiechart.color_temperature(grid)[0]
        for other in (np.asfortranarray(grid), grid.astype(np.float64, order="F"), grid.tolist()):
            np.testing.assert_array_equal(ceiechart.color_temperature(other)[0], expected)
        np.testing.assert_array_equal(ceiechart.color_temperature(grid[::-1, ::2])[0], expected[::-1, ::2])
        unaligned = np.frombuffer(b"." + grid.tobytes(), dtype=np.uint8)[1:].view(np.float64).reshape(grid.shape)
        np.testing.assert_array_equal(ceiechart.color_temperature(unaligned)[0], expected)
        single = ceiechart.color_temperature(grid.astype(np.float32))[0]
        np.testing.assert_allclose(single, expected, rtol=1e-4)


class NumbersTest(unittest.TestCase):
    def test_no_temperature(self) -> None:
        invalid = [[0.3, 0.0], [0.3, -0.1], [0.3, 1.1], [1.1, 0.3], [-1.1, 0.3], [np.nan, 0.3], [0.3, np.inf]]
        kelvin, duv = ceiechart.color_temperature([[0.3, 0.3]] + invalid)
        self.assertTrue(np.isfinite([kelvin[0], duv[0]]).all())
        self.assertTrue(np.isnan(kelvin[1:]).all() and np.isnan(duv[1:]).all())

    def test_no_white(self) -> None:
        self.assertTrue(np.isnan(ceiechart.white_point(np.zeros((3, 3)))).all())
        for wrong in NO_RESULT:
            colors = CABINET.copy()
            colors[1, 2] = wrong
            self.assertTrue(np.isnan(ceiechart.white_point(colors)).all())

    def test_no_matrix(self) -> None:
        line = [[0.1, 0.1], [0.2, 0.2], [0.3, 0.3]]
        self.assertTrue(np.isnan(ceiechart.primaries_to_xyz(line, SRGB.white)).all())
        self.assertTrue(np.isnan(ceiechart.primary_luminances(SRGB.primaries, [1, 0.3, 0])).all())
        for wrong in NO_RESULT:
            whites = np.stack([SRGB.white, [wrong, 0.3]])
            found = ceiechart.primaries_to_xyz([SRGB.primaries, SRGB.primaries], whites)
            self.assertTrue(np.isfinite(found[0]).all() and np.isnan(found[1]).all())

    def test_no_area(self) -> None:
        for wrong in NO_RESULT:
            gamut = SRGB.primaries.copy()
            gamut[0, 0] = wrong
            found = ceiechart.gamut_coverage([gamut, SRGB.primaries], SRGB.primaries)
            self.assertEqual((found.area[0], found.coverage[0]), (0, 0))
            self.assertAlmostEqual(found.coverage[1], 1.0)

    def test_walls(self) -> None:
        for wrong in NO_RESULT:
            gamut = SRGB.primaries.copy()
            gamut[2, 1] = wrong
            common = ceiechart.common_gamut([SRGB.primaries, gamut])
            self.assertIs(common.shape, CommonShape.NOT_KNOWN)
            np.testing.assert_array_equal(common.invalid, [1])
            fit = ceiechart.fitted_target([SRGB.primaries], gamut, SRGB.white)
            self.assertIs(fit.fault, FitFault.NOT_FINITE)
            wall = ceiechart.corrections([CABINET], gamut, SRGB.white)
            self.assertIs(wall.fault, WallFault.NOT_FINITE)
            self.assertTrue(np.isnan(wall.matrices).all())
            wall = ceiechart.corrections([CABINET], SRGB.primaries, SRGB.white, luminance=wrong)
            self.assertIs(wall.fault, WallFault.NOT_FINITE)
        for wrong in (0.0, -1.0):
            wall = ceiechart.corrections([CABINET], SRGB.primaries, SRGB.white, luminance=wrong)
            self.assertIs(wall.fault, WallFault.NO_LUMINANCE)

    def test_any_numbers(self) -> None:
        numbers = [np.nan, np.inf, -np.inf, 0.0, -0.0, 5e-324, 1e308, -1e308, 0.33]
        random = np.random.default_rng(5)
        for _ in range(300):
            gamuts = random.choice(numbers, (3, 3, 2))
            cabinets = random.choice(numbers, (3, 3, 3))
            ceiechart.color_temperature(gamuts)
            ceiechart.white_point(cabinets)
            with np.errstate(all="ignore"):
                ceiechart.primaries_to_xyz(gamuts, gamuts[:, 0])
            for diagram in Diagram:
                ceiechart.to_diagram(gamuts, diagram)
                ceiechart.gamut_coverage(gamuts, gamuts[::-1], diagram)
            ceiechart.common_gamut(gamuts)
            for first, second in itertools.product((gamuts[0], SRGB.primaries), (gamuts[1, 0], SRGB.white)):
                ceiechart.fitted_target(gamuts, first, second)
                ceiechart.largest_target(gamuts, first, second)
                found = ceiechart.corrections(cabinets, first, second, cabinets[:, 0], float(random.choice(numbers)))
                self.assertEqual(found.matrices.shape, (3, 3, 3))


if __name__ == "__main__":
    unittest.main()
