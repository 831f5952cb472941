# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Single colours against published numbers, and against sums made here."""

import csv
import os
import unittest

import numpy as np

import ceiechart
from ceiechart import Diagram

# The value of CODATA 2018, which the library uses, and those of older conventions, in m K.
C2 = 1.438776877e-2
C2_OF_1968 = 1.4388e-2
C2_OF_D_ILLUMINANTS = 1.4380e-2
C2_OF_ILLUMINANT_A = 1.4350e-2

# Recommendations ITU-R BT.709-6, items 1.3 and 1.4, and BT.2020-2, table 3; SMPTE EG 432-1:2010; Adobe RGB (1998) Color
# Image Encoding, 2005-05.
REC709 = [[0.64, 0.33], [0.30, 0.60], [0.15, 0.06]]
REC2020 = [[0.708, 0.292], [0.170, 0.797], [0.131, 0.046]]
P3 = [[0.680, 0.320], [0.265, 0.690], [0.150, 0.060]]
ADOBE_RGB = [[0.64, 0.33], [0.21, 0.71], [0.15, 0.06]]
D65 = [0.3127, 0.3290]


class ColorTemperatureTest(unittest.TestCase):
    def test_illuminants(self) -> None:
        # CIE 15:2004, table T.3, with the temperatures by which the illuminants were once defined.
        published = [
            ([0.44758, 0.40745], 2848 * C2 / C2_OF_ILLUMINANT_A, 0.2),
            ([0.34567, 0.35851], 5000 * C2 / C2_OF_D_ILLUMINANTS, 1.5),
            ([0.33243, 0.34744], 5500 * C2 / C2_OF_D_ILLUMINANTS, 1.5),
            ([0.31272, 0.32903], 6500 * C2 / C2_OF_D_ILLUMINANTS, 1.5),
            ([0.29903, 0.31488], 7500 * C2 / C2_OF_D_ILLUMINANTS, 1.5),
        ]
        kelvin, duv = ceiechart.color_temperature([xy for xy, _, _ in published])
        for found, (xy, expected, tolerance) in zip(kelvin, published):
            self.assertLessEqual(abs(found - expected), tolerance, str(xy))
        # A is Planckian by its definition.
        self.assertLess(abs(duv[0]), 1e-5)

    def test_isotemperature_lines(self) -> None:
        # A. R. Robertson, J. Opt. Soc. Am. 58 (1968); Wyszecki and Stiles, Color Science, 1982, table 1(3.11): mired
        # with c2 = 1.4388e-2 m K, u, v.
        published = np.array(
            [
                [50, 0.18388, 0.27709],
                [100, 0.19032, 0.29326],
                [150, 0.19962, 0.30921],
                [200, 0.21142, 0.32312],
                [300, 0.24010, 0.34308],
                [400, 0.27218, 0.35407],
                [500, 0.30505, 0.35907],
                [600, 0.33724, 0.36051],
            ]
        )
        kelvin, duv = ceiechart.color_temperature(ceiechart.from_diagram(published[:, 1:], Diagram.CIE_1960))
        # Half a unit of the fifth decimal in u and v is 7.1e-6 at most; the locus moves by 2.5e-4 a mired at least.
        mired = 1e6 / (kelvin * C2_OF_1968 / C2)
        np.testing.assert_allclose(mired, published[:, 0], rtol=0, atol=7.1e-6 / 2.5e-4)
        np.testing.assert_allclose(duv, 0, atol=7.1e-6)

    def test_accuracy_from_1500_to_40000_kelvin(self) -> None:
        # The locus by its definition in extended precision, and chromaticities on its normals. On their way they are
        # rounded to double precision, as the caller's are.
        if np.finfo(np.longdouble).nmant < 63:
            self.skipTest("no extended precision here")
        with open(os.environ["COLOUR_MATCHING_FUNCTIONS"], encoding="utf-8", newline="") as file:
            table = [[np.longdouble(value) for value in row] for row in list(csv.reader(file))[1:]]
        functions = np.array(table)
        wavelengths = functions[:, 0] * np.longdouble("1e-9")
        kelvin = 1 / np.linspace(1 / np.longdouble(40000), 1 / np.longdouble(1500), 400)
        power = np.longdouble("1.438776877e-2") / (wavelengths * kelvin[:, np.newaxis])
        growth = np.expm1(power)
        light = (wavelengths * np.longdouble("1e7")) ** -5 / growth
        change = light * power / kelvin[:, np.newaxis] * (growth + 1) / growth
        color, slope = light @ functions[:, 1:], change @ functions[:, 1:]
        weights = np.array([1, 15, 3], dtype=np.longdouble)
        sums, sum_slopes = color @ weights, slope @ weights
        u, v = 4 * color[:, 0] / sums, 6 * color[:, 1] / sums
        du = (4 * slope[:, 0] - u * sum_slopes) / sums
        dv = (6 * slope[:, 1] - v * sum_slopes) / sums
        length = np.hypot(du, dv)
        distance = np.linspace(np.longdouble("-0.05"), np.longdouble("0.05"), 11)[:, np.newaxis]
        # Towards green: the locus runs to smaller u as the temperature rises.
        on_u, on_v = u + distance * dv / length, v - distance * du / length
        xy = np.stack([3 * on_u, 2 * on_v], axis=-1) / (2 * on_u - 8 * on_v + 4)[..., np.newaxis]
        found, duv = ceiechart.color_temperature(xy.astype(np.float64))
        worst = np.max(np.abs(found - kelvin.astype(np.float64)))
        print(f"largest error of the temperature: {worst:.2g} K")
        self.assertEqual(found.shape, (11, 400))
        self.assertLessEqual(worst, 6.3e-6)
        np.testing.assert_allclose(duv, np.broadcast_to(distance, duv.shape).astype(np.float64), rtol=0, atol=1e-12)


class MatricesTest(unittest.TestCase):
    def test_luminances_of_the_standards(self) -> None:
        # The coefficients of luma, which are rounded: BT.709-6, item 3.2, and BT.2020-2, table 4.
        luminances = ceiechart.primary_luminances([REC709, REC2020], [1.0] + D65)
        np.testing.assert_allclose(luminances, [[0.2126, 0.7152, 0.0722], [0.2627, 0.6780, 0.0593]], atol=5.001e-5)

    def test_matrices_of_the_standards(self) -> None:
        published = {
            # IEC 61966-2-1:1999, 5.2
            "sRGB": (REC709, [[0.4124, 0.3576, 0.1805], [0.2126, 0.7152, 0.0722], [0.0193, 0.1192, 0.9505]], 1e-4),
            # SMPTE EG 432-1:2010, for a white of D65
            "P3": (
                P3,
                [[0.48657095, 0.26566769, 0.19821729], [0.22897456, 0.69173852, 0.07928691], [0, 0.04511338, 1.04394437]],
                1e-8,
            ),
            # Adobe RGB (1998) Color Image Encoding, 4.3.5.3
            "Adobe RGB": (
                ADOBE_RGB,
                [[0.57667, 0.18556, 0.18823], [0.29734, 0.62736, 0.07529], [0.02703, 0.07069, 0.99134]],
                5.001e-6,
            ),
        }
        for name, (primaries, matrix, tolerance) in published.items():
            found = ceiechart.primaries_to_xyz(primaries, D65)
            np.testing.assert_allclose(found, matrix, rtol=0, atol=tolerance, err_msg=name)

    def test_white_of_the_primaries(self) -> None:
        primaries = np.concatenate([np.array([[0.2126], [0.7152], [0.0722]]), REC709], axis=1)
        white = ceiechart.white_point(primaries)
        np.testing.assert_allclose(white, [1.0, 0.3127, 0.3290], atol=5e-5)

    def test_many_at_once(self) -> None:
        primaries = np.array([REC709, REC2020, P3])
        whites = np.array([[0.3127, 0.3290], [0.3457, 0.3585]])
        found = ceiechart.primaries_to_xyz(primaries[:, np.newaxis], whites)
        self.assertEqual(found.shape, (3, 2, 3, 3))
        for i in range(3):
            for j in range(2):
                np.testing.assert_array_equal(found[i, j], ceiechart.primaries_to_xyz(primaries[i], whites[j]))
        # Equal amounts of the primaries make the white.
        sums = found.sum(axis=-1)
        np.testing.assert_allclose(sums[..., 0] / sums.sum(axis=-1), np.broadcast_to(whites[:, 0], (3, 2)), atol=1e-12)


class DiagramTest(unittest.TestCase):
    def test_uniform_coordinates(self) -> None:
        # CIE 15:2004, table T.3: x, y and u', v' of the illuminants A, D50 and D65.
        xy = [[0.44758, 0.40745], [0.34567, 0.35851], [0.31272, 0.32903]]
        uv = [[0.2560, 0.5243], [0.2092, 0.4881], [0.1978, 0.4683]]
        np.testing.assert_allclose(ceiechart.to_diagram(xy, Diagram.CIE_1976), uv, atol=5.001e-5)
        for diagram in Diagram:
            there = ceiechart.to_diagram(xy, diagram)
            np.testing.assert_allclose(ceiechart.from_diagram(there, diagram), xy, atol=1e-14)


if __name__ == "__main__":
    unittest.main()
