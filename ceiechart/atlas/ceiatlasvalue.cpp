// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/atlas/ceiatlasvalue.h>

#include <ceiechart/atlas/blackbody_p.h>
#include <ceiechart/atlas/spectrallocus_p.h>

#include <gamutmodel/cie1931_p.h>

#include <iterator>

CEIAtlasValue::CEIAtlasValue()
    : CEIAtlasValue(nullptr)
{
}

CEIAtlasValue::CEIAtlasValue(QObject *parent)
    : QObject(parent)
{
    initData();
}

CEIAtlasValue::~CEIAtlasValue() = default;

void CEIAtlasValue::initData()
{
    colorSystem = {0.625F, 0.34F, 0.275F, 0.605F, 0.15F, 0.065F, 0.3127F, 0.3291F};

    for (const CEITemperatureCoordinate &row : ceiechart::blackBodies) {
        temperatureCoordinates.append(row);
    }

    for (const Model::ColorMatching &row : Model::cie1931) {
        atlasCoordinates.append({row.wavelength, row.x, row.y, row.z});
    }

    spectrumLocus.reserve(std::size(ceiechart::spectralLocus));
    spectrumLocus.insert(spectrumLocus.end(), std::begin(ceiechart::spectralLocus), std::end(ceiechart::spectralLocus));
}
