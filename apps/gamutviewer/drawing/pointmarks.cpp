// SPDX-License-Identifier: MIT
#include "drawing/pointmarks.h"

#include <QSet>

namespace gamutviewer {

namespace {

QColor colorCalled(const QString &name)
{
    const auto isCalled = [plain = name.trimmed()](const char *word) {
        const QString whole = QString::fromLatin1(word);
        return plain.compare(whole, Qt::CaseInsensitive) == 0 || plain.compare(whole.left(1), Qt::CaseInsensitive) == 0;
    };
    return isCalled("red")  ? Qt::red
        : isCalled("green") ? Qt::green
        : isCalled("blue")  ? Qt::blue
        : isCalled("white") ? Qt::white
                            : Qt::black;
}

} // namespace

QVector<PointMark> measureMarks(const QVector<NamedPoint> &points)
{
    QVector<PointMark> marks;
    QSet<QRgb> taken;
    for (const NamedPoint &point : points) {
        const QColor color = colorCalled(point.name);
        marks.append({point.xy, taken.contains(color.rgb()) ? QColor(Qt::black) : color});
        taken.insert(color.rgb());
    }
    return marks;
}

QVector<PointMark> cmyMarks(const QVector<QPointF> &points)
{
    const QVector<QColor> colors{Qt::cyan, Qt::magenta, Qt::yellow};
    QVector<PointMark> marks;
    for (int i = 0; i < points.size(); ++i) {
        marks.append({points.at(i), colors.value(i, Qt::black)});
    }
    return marks;
}

QVector<QPointF> positions(const QVector<NamedPoint> &points)
{
    QVector<QPointF> xy;
    for (const NamedPoint &point : points) {
        xy.append(point.xy);
    }
    return xy;
}

} // namespace gamutviewer
