// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// Runs of pixels by each kernel of the fill: the bits are those of the plain loop, and the colours those of the
// definition.
#include "expect.h"

#include <supportedfillkernels.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <utility>

namespace {

using ceiechart::FillKernel;
using ceiechart::PixelRun;

constexpr int longest = 80; // pixels; the fill asks for 64 at most
constexpr int runsOfEachLength = 150; // of each sort
constexpr int guard = 20; // pixels before and behind a run, more than are in a vector
constexpr unsigned untouched = 0x12345678U;

struct Colored {
    bool any;
    std::vector<unsigned> colors, undecided;
    bool elsewhere; //!< whether other pixels than those of the run have been touched
};

bool operator==(const Colored &a, const Colored &b)
{
    return a.any == b.any && a.colors == b.colors && a.undecided == b.undecided && !a.elsewhere && !b.elsewhere;
}

bool isUntouched(const std::vector<unsigned> &pixels, int first, int count)
{
    return std::all_of(
        pixels.begin() + first, pixels.begin() + first + count, [](unsigned pixel) { return pixel == untouched; });
}

// The run begins at any pixel, so that vectors stand at all addresses.
Colored coloredBy(const FillKernel &kernel, const PixelRun &run, int count, int begin)
{
    const auto room = static_cast<std::size_t>(begin + count + guard);
    Colored colored{false, std::vector<unsigned>(room, untouched), std::vector<unsigned>(room, untouched), false};
    colored.any = kernel.decide(run, count, colored.colors.data() + begin, colored.undecided.data() + begin);
    for (const auto *pixels : {&colored.colors, &colored.undecided}) {
        colored.elsewhere |= !isUntouched(*pixels, 0, begin) || !isUntouched(*pixels, begin + count, guard);
    }
    return colored;
}

class Runs {
public:
    // Amounts as the fill has them: their sum is 1 on the whole run.
    PixelRun ordinary()
    {
        PixelRun run{};
        run.red = amount();
        run.green = amount();
        run.blue = 1.0F - run.red - run.green;
        run.redStep = amount() / 64.0F;
        run.greenStep = amount() / 64.0F;
        run.blueStep = -run.redStep - run.greenStep;
        run.margin = 0.01F;
        return run;
    }

    // Any bits at all, of which many are huge, tiny or not a number.
    PixelRun random()
    {
        return of([this] {
            const auto bits = static_cast<std::uint32_t>(m_random());
            float value;
            std::memcpy(&value, &bits, sizeof value);
            return value;
        });
    }

    // What arithmetic treats in special ways, among amounts that it does not.
    PixelRun hostile()
    {
        using Limits = std::numeric_limits<float>;
        static constexpr float special[] = {0.0F, -0.0F, 1.0F, -1.0F, 0.5F, 0.25F, 1.0F / 3.0F, 255.0F,
            Limits::epsilon(), Limits::min(), Limits::denorm_min(), -Limits::denorm_min(), 1e-39F, Limits::max(),
            Limits::lowest(), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), -Limits::quiet_NaN()};
        return of([this] { return m_random() % 3 == 0 ? amount() : special[m_random() % std::size(special)]; });
    }

    // Amounts that are all zero somewhere, which leaves no largest one to scale by.
    PixelRun black()
    {
        PixelRun run{};
        run.red = amount();
        run.redStep = -run.red / 16.0F;
        run.greenStep = m_random() % 2 == 0 ? 0.0F : -0.01F;
        return run;
    }

    int begin() { return guard + static_cast<int>(m_random() % 4); }

private:
    float amount() { return m_amount(m_random); }

    template <typename Value>
    static PixelRun of(Value value)
    {
        PixelRun run{};
        for (float *member :
            {&run.red, &run.green, &run.blue, &run.redStep, &run.greenStep, &run.blueStep, &run.margin}) {
            *member = value();
        }
        return run;
    }

    std::mt19937 m_random{17};
    std::uniform_real_distribution<float> m_amount{-2.3F, 2.3F};
};

std::string described(const char *sort, const PixelRun &run, int count)
{
    char text[200];
    std::snprintf(text, sizeof text, "%s run of %d pixels: %a %a %a, steps %a %a %a, margin %a", sort, count,
        double(run.red), double(run.green), double(run.blue), double(run.redStep), double(run.greenStep),
        double(run.blueStep), double(run.margin));
    return text;
}

// The first difference of a kernel from the plain loop, or nothing.
std::string differenceOf(const FillKernel &kernel, const FillKernel &plain)
{
    const std::pair<const char *, PixelRun (Runs::*)()> sorts[] = {
        {"ordinary", &Runs::ordinary}, {"random", &Runs::random}, {"hostile", &Runs::hostile}, {"black", &Runs::black}};
    Runs runs;
    for (int count = 0; count <= longest; ++count) {
        for (const auto &[sort, next] : sorts) {
            for (int i = 0; i < runsOfEachLength; ++i) {
                const PixelRun run = (runs.*next)();
                const int begin = runs.begin();
                if (!(coloredBy(kernel, run, count, begin) == coloredBy(plain, run, count, begin))) {
                    return kernel.name + (", " + described(sort, run, count));
                }
            }
        }
    }
    return {};
}

void eachKernelGivesTheBitsOfThePlainLoop(Expectations &expectations)
{
    const auto kernels = supportedFillKernels();
    for (const FillKernel *kernel : kernels) {
        const std::string difference = differenceOf(*kernel, *kernels.back());
        expectations.expect(difference.empty(), difference.c_str());
    }
}

// A channel of the definition in double precision; horseshoefill.cpp has it.
unsigned channel(double amount, double largest)
{
    return static_cast<unsigned>(255.0 * std::clamp(amount, 0.0, 1.0) / largest + 0.5);
}

// The margin of an ordinary run is larger than the error, so that what is decided is right.
void decidedPixelsHaveTheColorsOfTheDefinition(Expectations &expectations)
{
    Runs runs;
    long decided = 0;
    long undecided = 0;
    long wrong = 0;
    for (int i = 0; i < 2000; ++i) {
        const PixelRun run = runs.ordinary();
        unsigned colors[longest];
        unsigned flags[longest];
        const bool any = supportedFillKernels().front()->decide(run, longest, colors, flags);
        wrong += any != std::any_of(std::begin(flags), std::end(flags), [](unsigned flag) { return flag != 0; });
        for (int k = 0; k < longest; ++k) {
            const double red = double(run.red) + k * double(run.redStep);
            const double green = double(run.green) + k * double(run.greenStep);
            const double blue = 1.0 - red - green;
            const double largest = std::min(std::max({red, green, blue}), 1.0);
            const unsigned expected
                = 0xff000000U | channel(red, largest) << 16 | channel(green, largest) << 8 | channel(blue, largest);
            (flags[k] != 0 ? undecided : decided) += 1;
            wrong += flags[k] == 0 && colors[k] != expected;
        }
    }
    expectations.expect(wrong == 0, "colours of the definition");
    expectations.expect(undecided > 0 && undecided < decided / 5, "few pixels are undecided");
}

// Where the compiler has a function of its own that asks the processor and the operating system, by that.
void theKernelsOfTheProcessorAreThere(Expectations &expectations)
{
    std::string expected;
#if defined(__x86_64__)
#ifndef _WIN32
    if (__builtin_cpu_supports("avx512f")) {
        expected += "AVX-512 ";
    }
    if (__builtin_cpu_supports("avx2")) {
        expected += "AVX2 ";
    }
#endif
    expected += "SSE2 ";
#elif defined(__aarch64__)
    expected += "NEON ";
#endif
    expected += "portable ";

    std::string found;
    for (const FillKernel *kernel : supportedFillKernels()) {
        found += kernel->name + std::string(" ");
    }
    std::printf("kernels: %s\n", found.c_str());
    expectations.expect(found == expected, expected.c_str());
    expectations.expect(&ceiechart::fastestFillKernel() == supportedFillKernels().front(), "the fastest is chosen");
    for (int i = 0; i < ceiechart::fillKernelCount; ++i) {
        if (!ceiechart::fillKernels[i].supported()) {
            std::printf("not tested, as this processor does not support it: %s\n", ceiechart::fillKernels[i].name);
        }
    }
}

} // namespace

int main()
{
    Expectations expectations;
    theKernelsOfTheProcessorAreThere(expectations);
    eachKernelGivesTheBitsOfThePlainLoop(expectations);
    decidedPixelsHaveTheColorsOfTheDefinition(expectations);
    return expectations.status();
}
