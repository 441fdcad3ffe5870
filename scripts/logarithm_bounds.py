#!/usr/bin/env python3
"""scripts/logarithm_bounds.py: bounds of the first stage of the logarithms, as docs/numbers.md
names them. Every rounded operation of src/numbers/elementary/logarithm_steps.h adds half a unit in
the last place of the largest value that it can have on a part of an interval of the table; the sum
is divided by the smallest logarithm there. Prints the worst quotient of each as a power of two."""
import math
import struct
from decimal import Decimal, getcontext

getcontext().prec = 60
PARTS = 64
EXPONENTS = [-1022, -10, -3, -2, -1, 0, 1, 2, 3, 10, 1023]
LN2 = int(Decimal(2).ln() * 2**32) / 2**32  # on the grid of the table
LN2_BEYOND = float(Decimal(2).ln() - Decimal(LN2))


def half(value):
    """Half a unit in the last place of a value of that size."""
    return 2.0 ** (math.frexp(abs(value))[1] - 54) if value else 0.0


def table():
    """For each interval: the inverse, its logarithm on the grid, and what is beyond."""
    for j in range(257):
        inverse = (math.floor(131072 / (256 + j) + 0.5) if j < 255 else 256) / 512
        exact = -Decimal(inverse).ln()
        on_grid = Decimal(int(exact * 2**32)) / 2**32
        yield j, inverse, float(on_grid), float(exact - on_grid)


def start(k, grid, beyond, r, split):
    """What both logarithms begin with: the size of `small`, its error, and the running sum."""
    is_one = k * LN2 + grid == 0  # next to 1 there is nothing but r
    beyond = 0 if is_one else abs(k * LN2_BEYOND + beyond)
    error = 0 if is_one else half(beyond) + abs(k) * half(LN2_BEYOND)
    if k and not is_one:
        error += half(beyond) + (half(k * LN2_BEYOND) if split else 0)
    square = r * r / 2
    first = 0 if is_one else half(abs(k * LN2 + grid) + r)
    total = abs(k * LN2 + grid) + r + square
    small = beyond + half(square)
    error += half(small) if beyond else 0
    second = first + half(total)
    error += half(second) if first else 0
    small += second
    error += half(small)
    return small, error, square, total


def natural(k, grid, beyond, r, split):
    """The sum's low part and its error."""
    small, error, square, _ = start(k, grid, beyond, r, split)
    factor = 2 / 3 + r / 2
    of_factor = 0.67 * half(2 / 3) + 2 * half(factor) + 2 * half(square)
    of_factor += half(r / 2) + half(square) if split else 0
    cube = r * square
    of_cube = r * half(square) + half(cube)
    third = cube * factor
    error += of_cube * factor + cube * of_factor + (half(third) if split else 0)
    return small + third, error + half(small + third) + 1.01 * r**9 / 9


def fine(k, grid, beyond, r, split):
    small, error, square, total = start(k, grid, beyond, r, split)
    cube = r * square
    cube_low = r * half(square) + half(cube)
    error += 2 / 3 * (half(cube_low) + (half(r * half(square)) if split else 0))
    third = half(cube * 2 / 3) + cube * 2**-54.5
    error += half(third) + (half(cube * 2**-54.5) if split else 0)
    third += cube_low * 2 / 3
    error += half(third) + cube_low * half(2 / 3) + (half(cube_low) if split else 0)
    factor = 1 + 0.8 * r
    fourth = square * square * factor
    error += (2 * square * half(square) + half(square * square)) * factor
    error += square * square * (2 * half(factor) + 3 * half(0.8 * r) + 2 * half(1.4 * square))
    error += half(fourth) if split else 0
    small += third
    error += half(small)
    small += half(total + cube)
    error += half(small) + half(small + fourth) + 1.01 * r**10 / 10
    return small + fourth, error


def sums(k, grid, beyond, r, split, value):
    """The errors of the three, relative to the logarithm."""
    low, error = natural(k, grid, beyond, r, split)
    roundings = half(0.4343 * low) * (3 if split else 2) / 0.4342
    return ((error + half(low)) / value, (error + roundings) / value,
            fine(k, grid, beyond, r, split)[1] / value)


def worst(split):
    bounds = (0, 0, 0)
    for k in EXPONENTS:
        for j, inverse, grid, beyond in table():
            low, high = max(1 + (j - 0.5) / 256, 1), min(1 + (j + 0.5) / 256, 2)
            ends = [low + (high - low) * i / PARTS for i in range(PARTS + 1)]
            for one, other in zip(ends, ends[1:]):
                r = max(abs(one * inverse - 1), abs(other * inverse - 1))
                value = min(abs(k * math.log(2) + math.log(m)) for m in (one, other))
                if value == 0:
                    continue  # smaller and smaller powers of r beside r
                bounds = tuple(map(max, bounds, sums(k, grid, beyond, r, split, value)))
    return bounds


for name, split in (("fused", False), ("split", True)):
    print(name, *(f"{what} 2^{math.log2(bound):.2f}" for what, bound in
                  zip(("natural", "decimal", "fine"), worst(split))))
