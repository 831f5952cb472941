// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
//
// Runs of pixels by each kernel of the fill: the bits are those of the plain loop, and the colours those of the
// definition.
#include "expect.h"

#include <supportedfillkernels.h>

#include <algorithm>
#include <array>
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

constexpr int longest = 80; // pixels: several vectors of each kernel, and more than the plain loop marks at once
constexpr int runsOfEachLength = 150; // of each sort
constexpr int guard = 20; // pixels before and behind a run, more than are in a vector
constexpr unsigned untouched = 0x12345678U;

struct Colored {
    std::vector<unsigned> colors;
    std::vector<int> undecided;
    bool elsewhere; //!< whether other pixels than those of the run have been touched
};

bool operator==(const Colored &a, const Colored &b)
{
    return a.colors == b.colors && a.undecided == b.undecided && !a.elsewhere && !b.elsewhere;
}

template <typename Pixel>
bool isUntouched(const std::vector<Pixel> &pixels, int first, int count)
{
    return std::all_of(
        pixels.begin() + first, pixels.begin() + first + count, [](Pixel pixel) { return pixel == Pixel(untouched); });
}

// The run begins at any pixel, so that vectors stand at all addresses.
Colored coloredBy(const FillKernel &kernel, const PixelRun &run, int count, int begin)
{
    const auto room = static_cast<std::size_t>(begin + count + guard);
    Colored colored{std::vector<unsigned>(room, untouched), std::vector<int>(room, int(untouched)), false};
    const int found = kernel.decide(run, count, colored.colors.data() + begin, colored.undecided.data() + begin);
    colored.elsewhere = !isUntouched(colored.colors, 0, begin) || !isUntouched(colored.colors, begin + count, guard)
        || !isUntouched(colored.undecided, 0, begin) || !isUntouched(colored.undecided, begin + count, guard);
    colored.undecided = {colored.undecided.begin() + begin, colored.undecided.begin() + begin + found};
    return colored;
}

class Runs {
public:
    // Amounts as the fill has them: their sum is 1 on the whole run, and the same one is the largest.
    PixelRun ordinary()
    {
        for (;;) {
            const Amounts from = share();
            const Amounts to = share();
            const auto largest = std::max_element(from.begin(), from.end()) - from.begin();
            if (std::max_element(to.begin(), to.end()) - to.begin() == largest) {
                PixelRun run{};
                for (std::size_t i = 0; i < from.size(); ++i) {
                    run.amounts[i] = from[i];
                    run.steps[i] = (to[i] - from[i]) / longest;
                }
                run.largest = static_cast<int>(largest);
                run.margin = 40;
                return run;
            }
        }
    }

    // Any numbers at all, of which many are huge or tiny.
    PixelRun random()
    {
        return of([this] {
            float value;
            do {
                const auto bits = static_cast<std::uint32_t>(m_random());
                std::memcpy(&value, &bits, sizeof value);
            } while (std::isnan(value));
            return value;
        });
    }

    // What arithmetic treats in special ways, among amounts that it does not.
    PixelRun hostile()
    {
        using Limits = std::numeric_limits<float>;
        static constexpr float special[] = {0.0F, -0.0F, 1.0F, -1.0F, 0.5F, 0.25F, 1.0F / 3.0F, 255.0F,
            Limits::epsilon(), Limits::min(), Limits::denorm_min(), -Limits::denorm_min(), 1e-39F, Limits::max(),
            Limits::lowest(), Limits::infinity(), -Limits::infinity()};
        return of([this] { return m_random() % 3 == 0 ? amount() : special[m_random() % std::size(special)]; });
    }

    // Amounts that are all zero somewhere, which leaves no largest one to scale by.
    PixelRun black()
    {
        PixelRun run{};
        run.amounts[0] = amount();
        run.steps[0] = -run.amounts[0] / 16.0F;
        run.steps[1] = m_random() % 2 == 0 ? 0.0F : -0.01F;
        run.largest = static_cast<int>(m_random() % 3);
        return run;
    }

    int begin() { return guard + static_cast<int>(m_random() % 4); }

private:
    using Amounts = std::array<float, 3>;

    float amount() { return m_amount(m_random); }

    Amounts share()
    {
        const float a = std::fabs(amount());
        const float b = std::fabs(amount());
        const float c = std::fabs(amount());
        return {a / (a + b + c), b / (a + b + c), c / (a + b + c)};
    }

    template <typename Value>
    PixelRun of(Value value)
    {
        PixelRun run{};
        for (int i = 0; i < 3; ++i) {
            run.amounts[i] = value();
            run.steps[i] = value();
        }
        run.largest = static_cast<int>(m_random() % 3);
        run.margin = static_cast<int>(m_random() % (1U << (PixelRun::fractionBits - 1)));
        return run;
    }

    std::mt19937 m_random{17};
    std::uniform_real_distribution<float> m_amount{-2.3F, 2.3F};
};

std::string described(const char *sort, const PixelRun &run, int count)
{
    char text[200];
    std::snprintf(text, sizeof text, "%s run of %d pixels: %a %a %a, steps %a %a %a, largest %d, margin %d", sort,
        count, double(run.amounts[0]), double(run.amounts[1]), double(run.amounts[2]), double(run.steps[0]),
        double(run.steps[1]), double(run.steps[2]), run.largest, run.margin);
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
    long undecided = 0;
    long wrong = 0;
    constexpr int runCount = 2000;
    for (int i = 0; i < runCount; ++i) {
        const PixelRun run = runs.ordinary();
        unsigned colors[longest];
        int listed[longest];
        const int found = supportedFillKernels().front()->decide(run, longest, colors, listed);
        undecided += found;
        for (int k = 0; k < longest; ++k) {
            const auto at = [&run, k](int index) { return double(run.amounts[index]) + k * double(run.steps[index]); };
            const double red = at(0);
            const double green = at(1);
            const double blue = at(2);
            const double largest = std::max({red, green, blue});
            const unsigned expected
                = 0xff000000U | channel(red, largest) << 16 | channel(green, largest) << 8 | channel(blue, largest);
            wrong += colors[k] != expected && !std::binary_search(listed, listed + found, k);
        }
    }
    expectations.expect(wrong == 0, "colours of the definition");
    expectations.expect(undecided > 0 && undecided < runCount * longest / 5, "few pixels are undecided");
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
