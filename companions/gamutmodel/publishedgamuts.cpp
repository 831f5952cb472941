// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/publishedgamuts.h>

#include <gamutmodel/plane_p.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

namespace Model {

namespace {

using Chromaticity = DiagramPoint;

constexpr Chromaticity d65{0.3127, 0.3290};
/*! \brief TB-2018-001: near to the daylight of 6000 K. */
constexpr Chromaticity acesWhite{0.32168, 0.33767};

struct Entry {
    const char *name;
    Chromaticity red;
    Chromaticity green;
    Chromaticity blue;
    Chromaticity white;
    const char *source;
    /*! \brief Other names, as comparable() gives them, each between semicolons. */
    const char *otherNames;
};

constexpr Entry entries[] = {
    {"Rec.709", {0.640, 0.330}, {0.300, 0.600}, {0.150, 0.060}, d65, "Recommendation ITU-R BT.709-6, items 1.3 and 1.4",
        ";bt709;iturbt709;itur709;hdtv;"},
    {"Rec.2020", {0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}, d65, "Recommendation ITU-R BT.2020-2, table 3",
        ";bt2020;iturbt2020;itur2020;rec2100;bt2100;uhdtv;"},
    {"DCI-P3(D65)", {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, d65,
        "SMPTE RP 431-2:2011, primaries; SMPTE ST 2113:2019, white (P3D65)", ";p3d65;p3;dcip3;"},
    {"sRGB", {0.640, 0.330}, {0.300, 0.600}, {0.150, 0.060}, d65, "IEC 61966-2-1:1999", ";iec6196621;"},
    {"Display P3", {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, d65,
        "SMPTE RP 431-2:2011, primaries; SMPTE EG 432-1:2010, white", ""},
    {"DCI-P3 (theatre)", {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, {0.314, 0.351},
        "SMPTE RP 431-2:2011, reference projector", ";dcip3theater;p3dci;p3theatre;p3theater;p3;dcip3;"},
    {"Adobe RGB (1998)", {0.640, 0.330}, {0.210, 0.710}, {0.150, 0.060}, d65,
        "Adobe RGB (1998) Color Image Encoding, version 2005-05", ";adobergb;"},
    {"Rec.601 (525)", {0.630, 0.340}, {0.310, 0.595}, {0.155, 0.070}, d65,
        "Recommendation ITU-R BT.601-7, 525 lines (SMPTE ST 170)",
        ";rec601;bt601;iturbt601;bt601525;rec601ntsc;smptec;smpte170m;ntsc;"},
    {"Rec.601 (625)", {0.640, 0.330}, {0.290, 0.600}, {0.150, 0.060}, d65,
        "Recommendation ITU-R BT.601-7, 625 lines (EBU Tech. 3213)",
        ";rec601;bt601;iturbt601;bt601625;rec601pal;pal;palsecam;secam;ebu;ebutech3213;"},
    {"NTSC 1953", {0.670, 0.330}, {0.210, 0.710}, {0.140, 0.080}, {0.310, 0.316},
        "47 CFR 73.682 (a)(20); Recommendation ITU-R BT.470-6, system M", ";ntsc;ntscfcc;bt470m;"},
    {"ACEScg", {0.713, 0.293}, {0.165, 0.830}, {0.128, 0.044}, acesWhite, "Academy S-2014-004, 4.3.1 (AP1)",
        ";ap1;acesap1;"},
    {"ACES2065-1", {0.73470, 0.26530}, {0.0, 1.0}, {0.00010, -0.07700}, acesWhite, "SMPTE ST 2065-1:2012 (AP0)",
        ";ap0;acesap0;"},
};

/*! \brief The gamut of the given primaries, whose luminances mix to a white of luminance 1. */
ColorGamut gamutOf(const Entry &entry)
{
    // With S = X + Y + Z of each colour, the mixture requires that the sums of x S, y S and S over the primaries equal
    // those of the white. The share of a primary in the S of the white is therefore the area of the triangle in which
    // the white replaces that primary, divided by the area of the whole triangle.
    const auto &[name, red, green, blue, white, source, otherNames] = entry;
    const double total = turn(red, green, blue);
    const auto luminance
        = [total, whiteY = white.y](Chromaticity primary, double share) { return share / total * primary.y / whiteY; };
    return ColorGamut(name,
        {Target::fromYxy(luminance(red, turn(white, green, blue)), red.x, red.y),
            Target::fromYxy(luminance(green, turn(red, white, blue)), green.x, green.y),
            Target::fromYxy(luminance(blue, turn(red, green, white)), blue.x, blue.y),
            Target::fromYxy(1.0, white.x, white.y)});
}

/*! \brief The letters and digits of \a name, in lower case. It does not depend on the locale. */
std::string comparable(std::string_view name)
{
    std::string kept;
    for (const char c : name) {
        if (c >= 'A' && c <= 'Z') {
            kept += char(c - 'A' + 'a');
        } else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) {
            kept += c;
        }
    }
    return kept;
}

template <typename Condition>
std::vector<PublishedGamut> publishedGamutsIf(const Condition &condition)
{
    std::vector<PublishedGamut> found;
    for (std::size_t i = 0; i < std::size(entries); ++i) {
        if (condition(entries[i])) {
            found.push_back(publishedGamuts()[i]);
        }
    }
    return found;
}

} // namespace

const std::vector<PublishedGamut> &publishedGamuts()
{
    static const std::vector<PublishedGamut> gamuts = [] {
        std::vector<PublishedGamut> all;
        for (const Entry &entry : entries) {
            all.push_back({gamutOf(entry), entry.source});
        }
        return all;
    }();
    return gamuts;
}

std::vector<PublishedGamut> publishedGamutsNamed(std::string_view name)
{
    const std::string wanted = comparable(name);
    if (wanted.empty()) {
        return {};
    }
    auto own = publishedGamutsIf([&](const Entry &entry) { return comparable(entry.name) == wanted; });
    if (!own.empty()) {
        return own;
    }
    const std::string other = ';' + wanted + ';';
    return publishedGamutsIf(
        [&](const Entry &entry) { return std::string_view(entry.otherNames).find(other) != std::string_view::npos; });
}

std::optional<PublishedGamut> publishedGamut(std::string_view name)
{
    const std::vector<PublishedGamut> found = publishedGamutsNamed(name);
    return found.size() == 1 ? std::make_optional(found.front()) : std::nullopt;
}

std::vector<PublishedGamut> publishedGamutsEqualTo(const Targets &gamut, double tolerance)
{
    const auto equal = [tolerance](const Target &colour, Chromaticity published) {
        return std::fabs(colour.x - published.x) <= tolerance && std::fabs(colour.y - published.y) <= tolerance;
    };
    return publishedGamutsIf([&](const Entry &entry) {
        return equal(gamut.red, entry.red) && equal(gamut.green, entry.green) && equal(gamut.blue, entry.blue)
            && equal(gamut.white, entry.white);
    });
}

ColorGamut rec709()
{
    return gamutOf(entries[0]);
}

ColorGamut rec2020()
{
    return gamutOf(entries[1]);
}

ColorGamut dciP3D65()
{
    return gamutOf(entries[2]);
}

std::vector<ColorGamut> standardGamuts()
{
    return {rec709(), rec2020(), dciP3D65()};
}

} // namespace Model
