// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_WIDGETS_LEGENDTESTS_H
#define CEIECHART_TESTS_WIDGETS_LEGENDTESTS_H

#include <reference/picturedifference.h>
#include <reference/propertyfacts.h>

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPointer>
#include <QTest>
#include <QTranslator>

#include <limits>

/*! \brief Notes what a class asks to be translated, and answers "<source>!" where told to. */
class TranslationLog : public QTranslator {
public:
    TranslationLog()
    {
        QCoreApplication::installTranslator(this);
        asked.clear(); // what the installation itself asks for
    }
    ~TranslationLog() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *disambiguation, int n) const override
    {
        asked.append(QStringLiteral("%1|%2|%3|%4")
                         .arg(QString::fromUtf8(context), QString::fromUtf8(source),
                             disambiguation ? QStringLiteral("disambiguation") : QString())
                         .arg(n));
        return answer;
    }

    mutable QStringList asked;
    QString answer;
};

/*! \brief The labels of a legend's entry, found by their place: swatch and caption follow each other. */
struct LegendLabels {
    QLabel *swatch = nullptr;
    QLabel *caption = nullptr;
};

// In the order in which they are shown.
enum ShownEntry { OriginalGamut, TargetGamut, CommonGamut, TargetPoint, OriginalPoint, ManagedPoint };

inline QVector<LegendLabels> legendLabels(const QWidget &legend)
{
    QVector<QLabel *> labels;
    for (int i = 0; i < legend.layout()->count(); ++i) {
        if (auto *label = qobject_cast<QLabel *>(legend.layout()->itemAt(i)->widget())) {
            labels.append(label);
        }
    }
    QVector<LegendLabels> entries;
    for (int i = 0; i + 1 < labels.size(); i += 2) {
        entries.append(LegendLabels{labels.at(i), labels.at(i + 1)});
    }
    return entries;
}

inline QStringList legendCaptions(const QWidget &legend)
{
    QStringList captions;
    for (const LegendLabels &entry : legendLabels(legend)) {
        captions.append(entry.caption->text());
    }
    return captions;
}

/*! \brief The items of a legend's layout as words, in order. */
inline QStringList legendItems(const QWidget &legend)
{
    auto *layout = qobject_cast<QBoxLayout *>(legend.layout());
    const bool row = qobject_cast<QHBoxLayout *>(layout);
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        const QLayoutItem *item = layout->itemAt(i);
        if (const auto *label = qobject_cast<QLabel *>(layout->itemAt(i)->widget())) {
            items.append(QLatin1String(label->pixmap(Qt::ReturnByValue).isNull() ? "caption" : "swatch")
                + (item->alignment() == Qt::AlignHCenter ? QString() : QStringLiteral(" askew"))
                + (layout->stretch(i) == 0 ? QString() : QStringLiteral(" stretched")));
        } else if (item->expandingDirections() == (row ? Qt::Horizontal : Qt::Vertical)) {
            items.append(QStringLiteral("stretch %1 of %2")
                             .arg(layout->stretch(i))
                             .arg(row ? item->sizeHint().width() : item->sizeHint().height()));
        } else {
            items.append(QStringLiteral("spacing %1").arg(row ? item->sizeHint().width() : item->sizeHint().height()));
        }
    }
    return items;
}

/*! \brief The swatch of an entry, painted by the plainest of calls. */
inline QImage paintedSwatch(ShownEntry entry)
{
    const int side = entry == TargetPoint ? 17 : 16;
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter;
    switch (entry) {
    case CommonGamut:
        pixmap.fill(QColor(255, 255, 0, 255));
        break;
    case TargetGamut:
        pixmap.fill(QColor(0, 0, 0, 255));
        break;
    case OriginalGamut:
        pixmap.fill(QColor(255, 255, 255, 255));
        painter.begin(&pixmap);
        painter.setPen(QPen(QBrush(Qt::gray), 1, Qt::SolidLine));
        painter.drawRect(0, 0, 15, 15);
        painter.end();
        break;
    case TargetPoint: {
        QPainterPath path;
        path.moveTo(7, 0);
        path.lineTo(9, 0);
        path.lineTo(9, 7);
        path.lineTo(16, 7);
        path.lineTo(16, 9);
        path.lineTo(9, 9);
        path.lineTo(9, 16);
        path.lineTo(7, 16);
        path.lineTo(7, 9);
        path.lineTo(0, 9);
        path.lineTo(0, 7);
        path.lineTo(7, 7);
        path.lineTo(7, 0);
        painter.begin(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.fillPath(path, QBrush(Qt::white, Qt::SolidPattern));
        painter.strokePath(path, QPen(Qt::black, 1));
        painter.end();
        break;
    }
    case OriginalPoint: {
        QPainterPath path;
        path.addEllipse(QRectF(0, 0, 15, 15));
        painter.begin(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.fillPath(path, QBrush(Qt::gray, Qt::SolidPattern));
        painter.end();
        break;
    }
    case ManagedPoint: {
        QPainterPath path;
        path.addEllipse(QRectF(1, 1, 14, 14));
        painter.begin(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.strokePath(path, QPen(Qt::black, 2));
        painter.end();
        break;
    }
    }
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

inline QString downwards(const QString &text)
{
    QString result;
    for (const QChar &character : text) {
        result += (result.isEmpty() ? QString() : QStringLiteral("\n")) + character;
    }
    return result;
}

/*! \brief What the legends of both generations have in common. */
template <class Legend>
struct LegendTests {
    static QStringList gamutCaptions()
    {
        return {QStringLiteral("原始色域"), QStringLiteral("目标色域"), QStringLiteral("公共色域")};
    }
    static QStringList allCaptions()
    {
        return gamutCaptions()
            + QStringList{QStringLiteral("目标点"), QStringLiteral("原始点"), QStringLiteral("管理后点")};
    }
    static QStringList downwards(const QStringList &texts)
    {
        QStringList result;
        for (const QString &text : texts) {
            result.append(::downwards(text));
        }
        return result;
    }

    // Six labels for the gamuts, six more for the points; all of them shown, all of them children.
    static void constructors()
    {
        QWidget parent;
        Legend gamutsOnly(&parent);
        Legend withoutPoints(false, &parent);
        Legend withPoints(true, &parent);
        Legend column(true, Qt::AlignLeft, &parent);
        Legend columnWithoutPoints(false, Qt::AlignRight, &parent);
        Legend orphan(nullptr);

        const QList<QPair<Legend *, int>> expected = {{&gamutsOnly, 6}, {&withoutPoints, 6}, {&withPoints, 12},
            {&column, 12}, {&columnWithoutPoints, 6}, {&orphan, 6}};
        for (const auto &[legend, labels] : expected) {
            QCOMPARE(legend->parentWidget(), legend == &orphan ? nullptr : &parent);
            QCOMPARE(legend->frameShape(), QFrame::NoFrame);
            QCOMPARE(legend->template findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).size(), labels);
            QCOMPARE(legend->template findChildren<QWidget *>().size(), labels);
            for (const QLabel *label : legend->template findChildren<QLabel *>()) {
                QVERIFY(!label->isHidden());
            }
        }
        QVERIFY(qobject_cast<QHBoxLayout *>(gamutsOnly.layout()));
        QVERIFY(qobject_cast<QHBoxLayout *>(withPoints.layout()));
        QVERIFY(qobject_cast<QVBoxLayout *>(column.layout()));
        QVERIFY(qobject_cast<QVBoxLayout *>(columnWithoutPoints.layout()));
        QCOMPARE(legendCaptions(gamutsOnly), gamutCaptions());
        QCOMPARE(legendCaptions(withPoints), allCaptions());
    }

    static void metaObject(const char *className)
    {
        const QMetaObject &meta = Legend::staticMetaObject;
        QCOMPARE(meta.className(), className);
        QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
        QCOMPARE(meta.methodCount(), meta.methodOffset());
        QCOMPARE(reference::declaredProperties(meta),
            QStringList({"legendAlignament", "showOriginalText", "showTargetText", "targetPointText",
                "originalPointText", "managedPointText", "commonGamutVisible", "targetGamutVisible",
                "originalGamutVisible", "targetPointVisible", "originalPointVisible", "managedPointVisible"}));
        QVERIFY((std::is_base_of_v<QFrame, Legend>));
        QVERIFY((!std::is_convertible_v<QWidget *, Legend>));
    }

    static void captionsAreTranslated(const char *context)
    {
        TranslationLog log;
        const Legend untouched(true, nullptr);
        QStringList expected;
        for (const QString &caption : allCaptions()) {
            expected.append(QStringLiteral("%1|%2||-1").arg(QLatin1String(context), caption));
        }
        log.asked.sort();
        expected.sort();
        QCOMPARE(log.asked, expected);

        log.answer = QStringLiteral("two words");
        const Legend row(true, nullptr);
        const Legend column(true, Qt::AlignLeft, nullptr);
        for (int entry = 0; entry < 6; ++entry) {
            QCOMPARE(legendCaptions(row).at(entry), log.answer);
            QCOMPARE(legendCaptions(column).at(entry), QStringLiteral("t\nw\no\n \nw\no\nr\nd\ns"));
        }
    }

    static void captionsFollowTheLanguage()
    {
        Legend row(true, nullptr);
        Legend column(true, Qt::AlignLeft, nullptr);
        Legend turned(true, Qt::AlignLeft, nullptr);
        turned.setLegendAlignament(Qt::AlignBottom);
        row.setShowTargetText(QStringLiteral("of the host"));
        legendLabels(row).at(ManagedPoint).caption->setText(QStringLiteral("by hand"));
        TranslationLog log;
        log.answer = QStringLiteral("new");
        QCOMPARE(legendCaptions(row).constFirst(), allCaptions().constFirst());
        QCoreApplication::processEvents();
        QStringList expected;
        for (int entry = 0; entry < 6; ++entry) {
            expected.append(log.answer);
        }
        QCOMPARE(legendCaptions(turned), expected);
        QCOMPARE(legendCaptions(column), downwards(expected));
        turned.setLegendAlignament(Qt::AlignRight);
        QCOMPARE(legendCaptions(turned), downwards(expected));
        expected[TargetGamut] = QStringLiteral("of the host");
        expected[ManagedPoint] = QStringLiteral("by hand");
        QCOMPARE(legendCaptions(row), expected);

        // Again, and back.
        log.answer = QStringLiteral("other");
        QCoreApplication::removeTranslator(&log);
        QCoreApplication::installTranslator(&log);
        QCoreApplication::processEvents();
        QCOMPARE(legendCaptions(row).constFirst(), QStringLiteral("other"));
        QCOMPARE(legendCaptions(row).at(TargetGamut), QStringLiteral("of the host"));
        QCoreApplication::removeTranslator(&log);
        QCoreApplication::processEvents();
        QCOMPARE(legendCaptions(row).constFirst(), allCaptions().constFirst());
    }

    static void getters()
    {
        Legend legend(true, Qt::AlignRight, nullptr);
        QCOMPARE(legend.legendAlignament(), Qt::Alignment(Qt::AlignRight));
        // As they are read across, although they are written downwards.
        QCOMPARE(legend.showOriginalText(), allCaptions().at(OriginalGamut));
        QCOMPARE(legend.showTargetText(), allCaptions().at(TargetGamut));
        QCOMPARE(legend.targetPointText(), allCaptions().at(TargetPoint));
        QCOMPARE(legend.originalPointText(), allCaptions().at(OriginalPoint));
        QCOMPARE(legend.managedPointText(), allCaptions().at(ManagedPoint));
        legend.setLegendAlignament(Qt::AlignTop | Qt::AlignLeft);
        QCOMPARE(legend.legendAlignament(), Qt::AlignTop | Qt::AlignLeft);
        legend.setTargetPointText(QStringLiteral("a"));
        legend.setOriginalPointText(QStringLiteral("b"));
        legend.setManagedPointText(QStringLiteral("c"));
        QCOMPARE(legendCaptions(legend).mid(3), QStringList({"a", "b", "c"}));
        legend.setshowPointText(QStringLiteral("d"), QStringLiteral("e"), QStringLiteral("f"));
        legend.setShowOriginalText(QStringLiteral("g"));
        QCOMPARE(QStringList({legend.targetPointText(), legend.originalPointText(), legend.managedPointText(),
                     legend.showOriginalText()}),
            QStringList({"d", "e", "f", "g"}));

        for (const auto type : {Legend::CommonGamut, Legend::TargetGamut, Legend::OriginalGamut, Legend::TargetPoint,
                 Legend::OriginalPoint, Legend::ManagedPoint}) {
            QVERIFY(legend.isLegendVisible(type));
            legend.setLegendVisible(type, false);
            QVERIFY(!legend.isLegendVisible(type));
        }
        for (const int none : {-1, 7, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            QVERIFY(!legend.isLegendVisible(static_cast<typename Legend::legendType>(none)));
        }
        Legend withoutPoints(nullptr);
        QVERIFY(!withoutPoints.isLegendVisible(Legend::TargetPoint));
        QVERIFY(withoutPoints.isLegendVisible(Legend::TargetGamut));
        withoutPoints.setTargetPointText(QStringLiteral("a"));
        QVERIFY(withoutPoints.targetPointText().isEmpty());
    }

    static void swatches()
    {
        const Legend legend(true, nullptr);
        const QVector<LegendLabels> labels = legendLabels(legend);
        QCOMPARE(labels.size(), 6);
        for (int entry = 0; entry < labels.size(); ++entry) {
            const QImage swatch = labels.at(entry)
                                      .swatch->pixmap(Qt::ReturnByValue)
                                      .toImage()
                                      .convertToFormat(QImage::Format_ARGB32_Premultiplied);
            const QString difference
                = reference::firstDifference(swatch, paintedSwatch(static_cast<ShownEntry>(entry)));
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("entry %1: %2").arg(entry).arg(difference)));
        }
    }

    static void layout_data()
    {
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<bool>("besideChart");
        QTest::newRow("left") << Qt::Alignment(Qt::AlignLeft) << true;
        QTest::newRow("right") << Qt::Alignment(Qt::AlignRight) << true;
        QTest::newRow("bottom") << Qt::Alignment(Qt::AlignBottom) << false;
        QTest::newRow("top") << Qt::Alignment(Qt::AlignTop) << false;
        QTest::newRow("none") << Qt::Alignment() << false;
        QTest::newRow("left, centred") << Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter) << false;
        QTest::newRow("left, top") << Qt::Alignment(Qt::AlignLeft | Qt::AlignTop) << false;
        QTest::newRow("right, bottom") << Qt::Alignment(Qt::AlignRight | Qt::AlignBottom) << false;
        QTest::newRow("left and right") << Qt::Alignment(Qt::AlignLeft | Qt::AlignRight) << false;
        QTest::newRow("both centred") << Qt::Alignment(Qt::AlignCenter) << false;
    }

    static void verifyLayout(const Legend &legend, bool besideChart, bool points)
    {
        auto *layout = qobject_cast<QBoxLayout *>(legend.layout());
        QVERIFY(layout);
        QCOMPARE(bool(qobject_cast<QVBoxLayout *>(layout)), besideChart);
        QCOMPARE(bool(qobject_cast<QHBoxLayout *>(layout)), !besideChart);
        QCOMPARE(layout->contentsMargins(), QMargins(8, 8, 0, 8));
        QCOMPARE(layout->spacing(), 8);
        QStringList expected;
        for (int entry = 0; entry < (points ? 6 : 3); ++entry) {
            if (entry > 0) {
                expected.append(QStringLiteral("spacing 16"));
            }
            expected << QStringLiteral("swatch") << QStringLiteral("caption");
        }
        expected.append(QStringLiteral("stretch 0 of 0"));
        QCOMPARE(legendItems(legend), expected);
        for (const LegendLabels &labels : legendLabels(legend)) {
            QCOMPARE(labels.caption->wordWrap(), besideChart);
            QCOMPARE(labels.caption->alignment(),
                besideChart ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignLeft | Qt::AlignVCenter);
        }
    }

    static void layout()
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, besideChart);
        for (const bool points : {false, true}) {
            const Legend legend(points, alignment, nullptr);
            verifyLayout(legend, besideChart, points);
            const QStringList captions = points ? allCaptions() : gamutCaptions();
            QCOMPARE(legendCaptions(legend), besideChart ? downwards(captions) : captions);
        }
    }

    // The entries pack at the start, one after the other.
    static void entriesPackAtTheStart()
    {
        Legend row(true, nullptr);
        row.resize(2000, 60);
        row.show();
        const LegendLabels first = legendLabels(row).constFirst();
        QCOMPARE(first.swatch->x(), 8);
        QCOMPARE(first.caption->x(), 8 + 16 + 8);
        for (const LegendLabels &labels : legendLabels(row)) {
            QVERIFY(labels.swatch->x() < labels.caption->x());
        }
        QVERIFY(legendLabels(row).constLast().caption->geometry().right() < 1200);

        Legend column(true, Qt::AlignLeft, nullptr);
        column.resize(60, 3000);
        column.show();
        QCOMPARE(legendLabels(column).constFirst().swatch->y(), 8);
        QVERIFY(legendLabels(column).constLast().caption->geometry().bottom() < 1800);
    }

    static void texts()
    {
        for (const Qt::Alignment alignment : {Qt::Alignment(Qt::AlignBottom), Qt::Alignment(Qt::AlignLeft)}) {
            Legend legend(true, alignment, nullptr);
            const QString common = legendCaptions(legend).at(CommonGamut);
            legend.setShowOriginalText(QStringLiteral("factory state"));
            legend.setShowTargetText(QStringLiteral("as\nset"));
            legend.setshowPointText(QStringLiteral("target"), QStringLiteral(""), QStringLiteral("managed"));
            QCOMPARE(legendCaptions(legend),
                QStringList({QStringLiteral("factory state"), QStringLiteral("as\nset"), common,
                    QStringLiteral("target"), QString(), QStringLiteral("managed")}));
        }
    }

    static void textsWithoutPointEntries()
    {
        Legend legend(nullptr);
        legend.setshowPointText(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"));
        QCOMPARE(legendCaptions(legend), gamutCaptions());
    }

    static QString shown(const QWidget &legend)
    {
        QString result;
        for (const LegendLabels &labels : legendLabels(legend)) {
            result += labels.swatch->isHidden() ? QLatin1Char('-') : QLatin1Char('s');
            result += labels.caption->isHidden() ? QLatin1Char('-') : QLatin1Char('c');
        }
        return result;
    }

    // typesInShownOrder: the legendType values of the six entries, as they stand in the row.
    static void visibility(const QVector<int> &typesInShownOrder)
    {
        using Type = typename Legend::legendType;
        Legend legend(true, nullptr);
        for (int entry = 0; entry < typesInShownOrder.size(); ++entry) {
            const auto type = static_cast<Type>(typesInShownOrder.at(entry));
            QString expected = QStringLiteral("scscscscscsc");
            expected.replace(2 * entry, 2, QStringLiteral("--"));
            legend.setLegendVisible(type, false);
            QCOMPARE(shown(legend), expected);
            legend.setLegendVisible(type, false);
            QCOMPARE(shown(legend), expected);
            legend.setLegendVisible(type, true);
            QCOMPARE(shown(legend), QStringLiteral("scscscscscsc"));
        }
    }

    static void noEntryOfThatType(const QVector<int> &types)
    {
        using Type = typename Legend::legendType;
        Legend legend(true, nullptr);
        for (const int type : types) {
            legend.setLegendVisible(static_cast<Type>(type), false);
            QCOMPARE(shown(legend), QStringLiteral("scscscscscsc"));
        }
    }

    static void visibilityWithoutPointEntries(const QVector<int> &pointTypes)
    {
        using Type = typename Legend::legendType;
        Legend legend(nullptr);
        for (const int type : pointTypes) {
            legend.setLegendVisible(static_cast<Type>(type), false);
            QCOMPARE(shown(legend), QStringLiteral("scscsc"));
        }
    }

    // Each property is that of its entry, in the order in which the entries are shown.
    static void visibilityByProperties()
    {
        const QList<QByteArray> names = {"originalGamutVisible", "targetGamutVisible", "commonGamutVisible",
            "targetPointVisible", "originalPointVisible", "managedPointVisible"};
        for (const bool points : {true, false}) {
            Legend legend(points, nullptr);
            const QString all = shown(legend);
            for (int entry = 0; entry < names.size(); ++entry) {
                const char *name = names.at(entry).constData();
                QString expected = all;
                if (2 * entry < all.size()) {
                    expected.replace(2 * entry, 2, QStringLiteral("--"));
                }
                QCOMPARE(legend.property(name), QVariant(expected != all));
                QVERIFY(legend.setProperty(name, false));
                QCOMPARE(legend.property(name), QVariant(false));
                QCOMPARE(shown(legend), expected);
                QVERIFY(legend.setProperty(name, true));
                QCOMPARE(shown(legend), all);
            }
        }
    }

    // Every call arranges anew; nothing of the arrangement before is left.
    static void rearranging()
    {
        for (const bool points : {false, true}) {
            Legend legend(points, nullptr);
            legend.setLegendVisible(Legend::TargetGamut, false);
            const QString visible = shown(legend);
            const int objects = legend.template findChildren<QObject *>().size();
            for (const Qt::Alignment alignment : {Qt::Alignment(Qt::AlignLeft), Qt::Alignment(Qt::AlignRight),
                     Qt::Alignment(Qt::AlignBottom), Qt::Alignment(Qt::AlignLeft | Qt::AlignTop),
                     Qt::Alignment(Qt::AlignLeft), Qt::Alignment(Qt::AlignTop)}) {
                const QPointer<QLayout> previous(legend.layout());
                legend.setLegendAlignament(alignment);
                QVERIFY(previous.isNull());
                verifyLayout(legend, alignment == Qt::AlignLeft || alignment == Qt::AlignRight, points);
                QCOMPARE(legend.template findChildren<QObject *>().size(), objects);
                QCOMPARE(legendCaptions(legend), points ? allCaptions() : gamutCaptions());
                QCOMPARE(shown(legend), visible);
            }
        }
    }

    // Downwards only at the side, and only for a legend that was made for it and what it wrote itself.
    static void captionsOfARearrangedLegend()
    {
        Legend legend(true, Qt::AlignLeft, nullptr);
        legend.setShowTargetText(QStringLiteral("host"));
        QStringList across = allCaptions();
        across.replace(TargetGamut, QStringLiteral("host"));
        QStringList down = downwards(allCaptions());
        down.replace(TargetGamut, QStringLiteral("host"));

        QCOMPARE(legendCaptions(legend), down);
        legend.setLegendAlignament(Qt::AlignBottom);
        QCOMPARE(legendCaptions(legend), across);
        legend.setLegendAlignament(Qt::AlignRight);
        QCOMPARE(legendCaptions(legend), down);
        legend.setShowOriginalText(allCaptions().at(OriginalGamut));
        legend.setLegendAlignament(Qt::AlignLeft);
        QCOMPARE(legendCaptions(legend).at(OriginalGamut), allCaptions().at(OriginalGamut));
    }

    // Whether the points belong to the legend is settled at construction, whatever a subclass makes later.
    static void pointsMadeByASubclass()
    {
        class Subclass : public Legend {
        public:
            using Legend::drawQCPoint;
            using Legend::Legend;
        };
        Subclass legend(false, nullptr);
        legend.drawQCPoint(Qt::AlignLeft);
        QStringList captions;
        for (const QLabel *label : legend.template findChildren<QLabel *>()) {
            if (!label->text().isEmpty()) {
                captions.append(label->text());
            }
        }
        QCOMPARE(captions,
            allCaptions().mid(CommonGamut, 1) + allCaptions().mid(TargetGamut, 1) + allCaptions().mid(OriginalGamut, 1)
                + downwards(allCaptions().mid(TargetPoint)));
        legend.setLegendAlignament(Qt::AlignBottom);
        QCOMPARE(legendLabels(legend).size(), 3);
    }

    static void rearrangingWhileShown()
    {
        Legend legend(true, nullptr);
        legend.show();
        const int rowHeight = legend.sizeHint().height();
        legend.setLegendAlignament(Qt::AlignLeft);
        legend.adjustSize();
        QVERIFY(legend.sizeHint().height() > 4 * rowHeight);
        int bottom = -1;
        for (const LegendLabels &labels : legendLabels(legend)) {
            QVERIFY(labels.swatch->isVisible() && labels.caption->isVisible());
            QVERIFY(labels.swatch->y() > bottom);
            QVERIFY(labels.caption->y() > labels.swatch->geometry().bottom());
            bottom = labels.caption->geometry().bottom();
        }
    }
};

#endif // CEIECHART_TESTS_WIDGETS_LEGENDTESTS_H
