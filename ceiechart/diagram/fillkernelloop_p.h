// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The loop of the fill in vector instructions: a function of a class that defines the vectors and their operations.
// fillkernels.cpp includes this file once in the class of each set of instructions. It is not a template because GCC
// and clang take the instructions that a function may use from an attribute, and an argument of a template cannot set
// it.
//
// The operations are those of decideAnywhere() in fillkernels.cpp, in the same order.

CEIECHART_FILL_TARGET
static bool decide(const PixelRun &run, int count, unsigned *colors, unsigned *undecided)
{
    if (count < lanes) {
        unsigned laneColors[lanes];
        unsigned laneUndecided[lanes];
        decide(run, lanes, laneColors, laneUndecided);
        unsigned any = 0;
        for (int k = 0; k < count; ++k) {
            colors[k] = laneColors[k];
            undecided[k] = laneUndecided[k];
            any |= laneUndecided[k];
        }
        return any != 0;
    }

    const Floats zero = all(0.0F);
    const Floats one = all(1.0F);
    const Floats toWholes = all(wholes);
    const Floats farthest = all(0.5F - run.margin);
    Choice any = none();
    for (int k = 0; k < count; k += lanes) {
        // The last vector ends where the run does, and gives some pixels again.
        const int begin = std::min(k, count - lanes);
        const Floats step = numbers(wordSum(allWords(static_cast<unsigned>(begin)), indexes()));
        Floats red = sum(all(run.red), product(step, all(run.redStep)));
        Floats green = sum(all(run.green), product(step, all(run.greenStep)));
        Floats blue = sum(all(run.blue), product(step, all(run.blueStep)));
        red = smaller(larger(red, zero), one);
        green = smaller(larger(green, zero), one);
        blue = smaller(larger(blue, zero), one);
        const Floats largest = larger(blue, larger(green, red));

        const Floats scale = quotient(all(255.0F), largest);
        red = product(red, scale);
        green = product(green, scale);
        blue = product(blue, scale);
        const Floats nearRed = sum(red, toWholes);
        const Floats nearGreen = sum(green, toWholes);
        const Floats nearBlue = sum(blue, toWholes);
        const Floats offRed = magnitude(difference(red, difference(nearRed, toWholes)));
        const Floats offGreen = magnitude(difference(green, difference(nearGreen, toWholes)));
        const Floats offBlue = magnitude(difference(blue, difference(nearBlue, toWholes)));
        const Floats off = larger(offBlue, larger(offGreen, offRed));

        const Choice isNear = greater(off, farthest);
        store(undecided + begin, ones(isNear));
        any = either(any, isNear);
        const Words upper = wordSum(shifted<16>(bits(nearRed)), shifted<8>(bits(nearGreen)));
        store(colors + begin, wordSum(upper, wordSum(bits(nearBlue), allWords(opaque))));
    }
    return isAny(any);
}
