// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/diagram/finite_p.h>
#include <ceiechart/diagram/shownmarks_p.h>

namespace ceiechart {

ShownMarks shownMarks(const DiagramSheet &sheet)
{
    const QColor cmy[] = {QColor(0, 200, 220), QColor(220, 40, 200), QColor(240, 205, 0)};
    constexpr double room = markRadius + 2.0;
    const QRectF area = sheet.viewport.plot().adjusted(room, room, -room, -room);
    ShownMarks shown;
    const auto add = [&](DiagramLayer layer, const QVector<DiagramMark> &marks, auto shape, auto color) {
        for (int i = 0; sheet.shows(layer) && i < marks.size(); ++i) {
            const DiagramMark &mark = marks.at(i);
            const QPointF at = sheet.viewport.toPosition(mark.xy);
            if (!isFinite(at) || !area.contains(at)) {
                continue;
            }
            shown.marks.append({at, shape, (mark.color.isValid() ? mark.color : color(i)).rgba()});
            shown.places.add(at);
            if (shown.marks.size() <= mostNamedMarks) {
                shown.names.append(mark.name);
            }
        }
    };
    const auto white = [](int) { return QColor(Qt::white); };
    const auto ofCmy = [&cmy](int i) { return cmy[i % 3]; };
    add(DiagramLayer::MeasurePoints, sheet.content.measurePoints, PlacedMark::Shape::Disc, white);
    add(DiagramLayer::ColorTemperaturePoints, sheet.content.colorTemperaturePoints, PlacedMark::Shape::Diamond, white);
    add(DiagramLayer::CmyPoints, sheet.content.cmyPoints, PlacedMark::Shape::Square, ofCmy);
    if (shown.marks.size() > mostNamedMarks) {
        shown.names.clear();
    }
    return shown;
}

} // namespace ceiechart
