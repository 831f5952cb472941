// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// The loop of the fill in vector instructions: functions of a class that defines the vectors and their operations.
// fillkernels.cpp includes this file once in the class of each set of instructions. The class is not an argument of a
// template because GCC and clang take the instructions that a function may use from an attribute, which such an
// argument cannot set.
//
// The operations are those of decidePlain() in fillkernels.cpp, in the same order.

template <int channel>
CEIECHART_FILL_TARGET static Words placed(Words bits)
{
    constexpr int places = PixelRun::fractionBits - shiftOf(channel);
    if constexpr (places < 0) {
        return both(up<-places>(bits), allWords(maskOf(channel)));
    } else {
        return both(down<places>(bits), allWords(maskOf(channel)));
    }
}

template <int largest>
CEIECHART_FILL_TARGET static int decideRun(const PixelRun &run, int count, unsigned *colors, int *undecided)
{
    constexpr int first = Others<largest>::first;
    constexpr int second = Others<largest>::second;
    // For all that the compiler knows, the run could change while pixels are stored.
    const Floats largestBase = all(run.amounts[largest]);
    const Floats largestStep = all(run.steps[largest]);
    const Floats firstBase = all(run.amounts[first]);
    const Floats firstStep = all(run.steps[first]);
    const Floats secondBase = all(run.amounts[second]);
    const Floats secondStep = all(run.steps[second]);
    const Floats offset = all(offsetOf(run));
    const Words nearest = allWords(2U * static_cast<unsigned>(run.margin));
    const Words common = allWords(opaque | maskOf(largest));
    const Words fraction = allWords(fractionMask);
    Floats at = indexes();
    int found = 0;
    for (int k = 0; k < count; k += lanes) {
        int begin = k;
        if (k > count - lanes) {
            // The last vector ends where the run does, and gives some pixels again.
            begin = count - lanes;
            at = sum(all(static_cast<float>(begin)), indexes());
        }
        const Floats scale = quotient(all(255.0F), sum(largestBase, product(at, largestStep)));
        const Floats firstAmount = sum(firstBase, product(at, firstStep));
        const Floats secondAmount = sum(secondBase, product(at, secondStep));
        const Words a = bits(sum(product(firstAmount, scale), offset));
        const Words b = bits(sum(product(secondAmount, scale), offset));
        store(colors + begin, either(common, either(placed<first>(a), placed<second>(b))));

        const Choice isNear = isBelow(smaller(both(a, fraction), both(b, fraction)), nearest);
        int pixel = k;
        for (unsigned rest = chosen(isNear) >> (k - begin); rest != 0; rest >>= 1) {
            undecided[found] = pixel++;
            found += static_cast<int>(rest & 1U);
        }
        at = sum(at, all(static_cast<float>(lanes)));
    }
    return found;
}

CEIECHART_FILL_TARGET
static int decide(const PixelRun &run, int count, unsigned *colors, int *undecided)
{
    if (count < lanes) {
        unsigned laneColors[lanes];
        int laneUndecided[lanes];
        const int found = decide(run, lanes, laneColors, laneUndecided);
        for (int k = 0; k < count; ++k) {
            colors[k] = laneColors[k];
        }
        int kept = 0;
        for (; kept < found && laneUndecided[kept] < count; ++kept) {
            undecided[kept] = laneUndecided[kept];
        }
        return kept;
    }
    switch (run.largest) {
    case 0:
        return decideRun<0>(run, count, colors, undecided);
    case 1:
        return decideRun<1>(run, count, colors, undecided);
    default:
        return decideRun<2>(run, count, colors, undecided);
    }
}
