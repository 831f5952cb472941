// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/legacycharts.h>

namespace ceiechart {

LegacyXyChart::LegacyXyChart(QWidget *parent)
    : ::CEIEGraphicsView(parent, DrawCEIPicture::XyDiagram)
{
}

LegacyXyChart::~LegacyXyChart() = default;

LegacyUvChart::LegacyUvChart(QWidget *parent)
    : ::CEIEGraphicsView(parent, DrawCEIPicture::UvDiagram)
{
}

LegacyUvChart::~LegacyUvChart() = default;

} // namespace ceiechart
