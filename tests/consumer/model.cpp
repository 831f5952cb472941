// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutmodel/colorgamut.h>

int main()
{
    const Model::ColorGamut gamut("wall", Model::Targets());
    return gamut.colorGamutName() == "wall" ? 0 : 1;
}
