# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
"""Arguments of the functions as arrays of double precision, or a ValueError that says what is wrong with them."""

import math
from typing import Optional

import numpy as np
import numpy.typing as npt

FloatArray = npt.NDArray[np.float64]


def floats(values: npt.ArrayLike, name: str, shape: tuple[int, ...]) -> FloatArray:
    """The numbers of *values*, whose last dimensions have to be *shape*."""
    try:
        given = np.asarray(values)
        if given.dtype.kind not in "biufO":
            raise TypeError(f"{given.dtype} is no real number")
        array = np.asarray(given, dtype=np.float64)
    except (TypeError, ValueError) as error:
        raise ValueError(f"{name}: not an array of real numbers: {error}") from None
    if array.ndim < len(shape) or array.shape[array.ndim - len(shape) :] != shape:
        wanted = ", ".join(["..."] + [str(size) for size in shape])
        raise ValueError(f"{name}: an array of the shape ({wanted}) is needed, not {array.shape}")
    return array


def exactly(values: npt.ArrayLike, name: str, shape: tuple[int, ...]) -> FloatArray:
    """The numbers of *values*, whose shape has to be *shape*."""
    array = floats(values, name, shape)
    if array.ndim != len(shape):
        raise ValueError(f"{name}: an array of the shape {shape} is needed, not {array.shape}")
    return array


def rows(array: FloatArray, dimensions: int) -> FloatArray:
    """The array with all but its last *dimensions* made one, as the compiled functions take it."""
    split = array.ndim - dimensions
    return np.ascontiguousarray(array).reshape((math.prod(array.shape[:split]),) + array.shape[split:])


def together(
    first: FloatArray, first_dimensions: int, second: FloatArray, second_dimensions: int
) -> tuple[FloatArray, FloatArray, tuple[int, ...]]:
    """Both arrays with their leading dimensions broadcast to a common shape, and that shape."""
    lead_first = first.shape[: first.ndim - first_dimensions]
    lead_second = second.shape[: second.ndim - second_dimensions]
    try:
        lead = np.broadcast_shapes(lead_first, lead_second)
    except ValueError:
        raise ValueError(f"arrays of the shapes {first.shape} and {second.shape} do not go together") from None
    return (
        np.broadcast_to(first, lead + first.shape[first.ndim - first_dimensions :]),
        np.broadcast_to(second, lead + second.shape[second.ndim - second_dimensions :]),
        lead,
    )


def number(value: Optional[float], name: str) -> Optional[float]:
    """A single number, or nothing."""
    return None if value is None else float(exactly(value, name, ()))
