# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Areas and coverage against exact fractions, and published gamuts against their documents."""

import unittest
from fractions import Fraction

import numpy as np

import ceiechart
from ceiechart import Diagram

Point = tuple[Fraction, Fraction]


def polygon(gamut: ceiechart.Gamut, diagram: Diagram) -> list[Point]:
    """The corners of a gamut as fractions of the published decimals, counter-clockwise."""
    corners = []
    for x, y in (map(lambda value: Fraction(repr(float(value))), row) for row in gamut.primaries):
        d = -2 * x + 12 * y + 3
        corners.append((x, y) if diagram is Diagram.CIE_1931 else (4 * x / d, 9 * y / d))
    return corners if twice_area(corners) > 0 else corners[::-1]


def twice_area(corners: list[Point]) -> Fraction:
    """By the shoelace formula."""
    pairs = zip(corners, corners[1:] + corners[:1])
    return sum((a[0] * b[1] - b[0] * a[1] for a, b in pairs), Fraction(0))


def clipped(subject: list[Point], clip: list[Point]) -> list[Point]:
    """What two convex polygons have in common: I. E. Sutherland and G. W. Hodgman, Commun. ACM 17 (1974)."""
    for a, b in zip(clip, clip[1:] + clip[:1]):

        def side(p: Point, a: Point = a, b: Point = b) -> Fraction:
            return (b[0] - a[0]) * (p[1] - a[1]) - (b[1] - a[1]) * (p[0] - a[0])

        left: list[Point] = []
        for p, q in zip(subject, subject[1:] + subject[:1]):
            if side(p) >= 0:
                left.append(p)
            if side(p) * side(q) < 0:
                t = side(p) / (side(p) - side(q))
                left.append((p[0] + t * (q[0] - p[0]), p[1] + t * (q[1] - p[1])))
        subject = left
    return subject


class CoverageTest(unittest.TestCase):
    def test_every_pair_of_published_gamuts(self) -> None:
        gamuts = ceiechart.published_gamuts()
        primaries = np.array([gamut.primaries for gamut in gamuts])
        for diagram in (Diagram.CIE_1931, Diagram.CIE_1976):
            found = ceiechart.gamut_coverage(primaries[:, np.newaxis], primaries, diagram)
            self.assertEqual(found.coverage.shape, (len(gamuts), len(gamuts)))
            for i, gamut in enumerate(gamuts):
                for j, standard in enumerate(gamuts):
                    first, second = polygon(gamut, diagram), polygon(standard, diagram)
                    common = twice_area(clipped(first, second))
                    names = f"{gamut.name}, {standard.name}, {diagram}"
                    self.assertAlmostEqual(found.area[i, j], float(twice_area(first) / 2), 13, names)
                    self.assertAlmostEqual(found.common_area[i, j], float(common / 2), 13, names)
                    self.assertAlmostEqual(found.coverage[i, j], float(common / twice_area(second)), 12, names)
                    ratio = float(twice_area(first) / twice_area(second))
                    self.assertAlmostEqual(found.area_ratio[i, j], ratio, 12, names)

    def test_diagram_not_stated(self) -> None:
        gamut, standard = (ceiechart.published_gamut(name).primaries for name in ("sRGB", "Rec.2020"))
        self.assertEqual(
            ceiechart.gamut_coverage(gamut, standard), ceiechart.gamut_coverage(gamut, standard, Diagram.CIE_1976)
        )


class PublishedTest(unittest.TestCase):
    def test_documents(self) -> None:
        rec2020 = ceiechart.published_gamut("bt.2020")
        self.assertEqual(rec2020.name, "Rec.2020")
        self.assertIn("BT.2020", rec2020.source)
        np.testing.assert_array_equal(rec2020.primaries, [[0.708, 0.292], [0.170, 0.797], [0.131, 0.046]])
        np.testing.assert_array_equal(rec2020.white, [0.3127, 0.3290])
        self.assertAlmostEqual(float(rec2020.luminances.sum()), 1.0, 14)
        self.assertEqual(len({gamut.name for gamut in ceiechart.published_gamuts()}), 12)

    def test_names(self) -> None:
        with self.assertRaisesRegex(ValueError, "is no published gamut.*Rec.709"):
            ceiechart.published_gamut("nothing")
        with self.assertRaisesRegex(ValueError, "means several gamuts.*theatre"):
            ceiechart.published_gamut("P3")

    def test_results_can_be_changed(self) -> None:
        changed = ceiechart.published_gamut("sRGB")
        changed.primaries[:] = 0
        self.assertEqual(ceiechart.published_gamut("sRGB").primaries[0, 0], 0.64)


if __name__ == "__main__":
    unittest.main()
