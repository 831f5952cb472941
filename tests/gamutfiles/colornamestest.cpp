// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/colornames_p.h>

#include <QtTest>

using namespace gamutfiles;

Q_DECLARE_METATYPE(gamutfiles::MeasurementPart)

class ColorNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void levels_data();
    void levels();
    void fullLevels();
};

void ColorNamesTest::parts_data()
{
    QTest::addColumn<MeasurementPart>("part");
    const auto rows = [](MeasurementPart part, std::initializer_list<const char *> names) {
        for (const char *name : names) {
            QTest::newRow(name) << part;
        }
    };
    rows(MeasurementPart::Red,
        {"red", "Red", "RED", "R", "r", "rot", "Rouge", "rojo", "红", "红色", "红场", "纯红", "全红画面", "Red 100 %",
            "R255", "100% red", "Full Red", "Red primary", "Red_255", "Red (255,0,0)", "R @ 50%", "Red-128/255", "紅",
            "rosso", "Vermelho 100 %", "Rouge pur", "Rouge plein écran", "Rot max", "Red 100 IRE"});
    rows(MeasurementPart::Green,
        {"green", "G", "grün", "Gruen", "GRÜN", "vert", "Verde", "绿", "绿色", "Green 0,255,0"});
    rows(MeasurementPart::Blue, {"blue", "B", "Blau", "bleu", "azul", "蓝", "蓝场", "Blu 100%", "azul 255"});
    rows(MeasurementPart::White,
        {"white", "W", "weiß", "Weiss", "WEIß", "Blanc 100%", "blanco", "白", "白场", "白色画面", "White field", "W 50",
            "White 255/255/255", "Bianco", "branco 50%", "Weiß Pegel 255", "Bianco livello 100%", "Branco nível 50%",
            "Weiß Vollbild", "Blanco puro", "Pantalla blanco"});
    rows(MeasurementPart::Black,
        {"black", "K", "schwarz", "noir", "negro", "nero", "preto", "黑", "黑场", "Black 0,0,0"});
    rows(MeasurementPart::None,
        {"", "grey 50 %", "cyan", "red green", "dark red", "red+green", "5000", "reddish", "Red 255,255,0", "Red 1,2,3",
            "Red 1/2/3", "Red 5 6", "红绿", "场", "%", "Red 50% 60%", "R255 G0 B0"});
    QTest::newRow("a long name") << MeasurementPart::None;
}

void ColorNamesTest::parts()
{
    QFETCH(MeasurementPart, part);
    const QByteArray tag(QTest::currentDataTag());
    const QString name = tag == "a long name" ? "red" + QString(100, ' ') : QString::fromUtf8(tag);
    QCOMPARE(colorName(name).part, part);
}

void ColorNamesTest::levels_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("full"); // -1: not stated
    const auto row = [](const char *name, double value, double full) { QTest::newRow(name) << value << full; };
    row("Red 100 %", 100.0, 100.0);
    row("Red 12.5%", 12.5, 100.0);
    row("Rot 12,5 %", 12.5, 100.0);
    row("W 50", 50.0, -1.0);
    row("R255", 255.0, -1.0);
    row("Red 128/255", 128.0, 255.0);
    row("White 1.0", 1.0, -1.0);
    row("Red 255,0,0", 255.0, -1.0);
    row("White (64, 64, 64)", 64.0, -1.0);
    row("100 % blanc", 100.0, 100.0);
    row("红 １００％", 100.0, 100.0);
    row("Rosso 100 %", 100.0, 100.0);
    row("vermelho 128/255", 128.0, 255.0);
    row("Red 50 IRE", 50.0, -1.0);
}

void ColorNamesTest::levels()
{
    QFETCH(double, value);
    QFETCH(double, full);
    const ColorName name = colorName(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(name.part != MeasurementPart::None && name.level);
    QCOMPARE(name.level->value, value);
    QCOMPARE(name.level->full.value_or(-1.0), full);
}

void ColorNamesTest::fullLevels()
{
    const auto full = [](std::initializer_list<double> values, bool decimals = false) {
        QVector<ColorLevel> levels;
        for (const double value : values) {
            levels.append({value, std::nullopt, decimals});
        }
        return commonFullLevel(levels).value_or(-1.0);
    };
    QCOMPARE(full({}), -1.0);
    QCOMPARE(full({64, 128, 255}), 255.0);
    QCOMPARE(full({255, 1023}), 1023.0);
    QCOMPARE(full({4095}), 4095.0);
    QCOMPARE(full({65535}), 65535.0);
    QCOMPARE(full({25, 50, 100}), 100.0);
    QCOMPARE(full({0.5, 1.0}, true), 1.0);
    QCOMPARE(full({1}), -1.0); // a running number
    QCOMPARE(full({1, 2}), -1.0);
    QCOMPARE(full({50}), -1.0);
    QCOMPARE(full({300}), -1.0);
    QCOMPARE(commonFullLevel({{300, 300.0, false}, {255, std::nullopt, false}}).value_or(-1.0), 255.0);
}

QTEST_GUILESS_MAIN(ColorNamesTest)
#include "colornamestest.moc"
