// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/columnnames_p.h>

#include <QtTest>

using namespace gamutfiles;

Q_DECLARE_METATYPE(gamutfiles::ColumnPart)
Q_DECLARE_METATYPE(gamutfiles::MeasuredUnit)

class ColumnNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void noNames_data();
    void noNames();
    void units_data();
    void units();
};

void ColumnNamesTest::parts_data()
{
    QTest::addColumn<ColumnPart>("part");
    const auto rows = [](ColumnPart part, std::initializer_list<const char *> names) {
        for (const char *name : names) {
            QTest::newRow(name) << part;
        }
    };
    rows(ColumnPart::Name,
        {"name", "Patch", "Label", "Sample", "Colour", "SAMPLE_NAME", "Patch name", "Farbe", "Nom", "Nombre", "名称",
            "颜色"});
    rows(ColumnPart::Luminance,
        {"Lv", "LV", "lv", "L", "Luminance", "Luminance (cd/m2)", "nits", "cd/m²", "Leuchtdichte in cd/m²",
            "Lv [cd/m²]", "XYY_CAPY", "xyY_Y", "亮度", "亮度（cd/㎡）", "fL", "L_v", "Luminance, nits", "Luminance Y"});
    rows(ColumnPart::Y,
        {"Y", "CIE Y", "Measured Y", "Y (cd/m2)", "Y [cd/m²]", "XYZ_Y", "CIE 1931 Y", "Y (CIE 1931)", "Y/nits"});
    rows(ColumnPart::x,
        {"x", " x ", "CIE x", "xyY_x", "Measured x", "cie x", "CIE 1931 x", "CIE_x", "CIE1931-x", "sx", "XYY_X",
            "x (CIE 1931)", "x [-]", "x (2°)", "色坐标x", "色坐标 x", "x chromaticity", "Ｃｉｅ ｘ"});
    rows(ColumnPart::y, {"y", "CIE y", "CIE 1931 y", "sy", "XYY_Y", "xyY_y", "Measured y", "色坐标y", "Farbort y"});
    rows(ColumnPart::u, {"u'", "u′", "u’", "U'", "CIE u'", "CIE 1976 u′", "u (CIE 1976)", "u' (CIE 1976)", "u_prime"});
    rows(ColumnPart::v, {"v'", "v′", "CIE v'", "CIE 1976 v"});
    rows(ColumnPart::X, {"X", "CIE X", "XYZ_X", "X (cd/m2)"});
    rows(ColumnPart::Z, {"Z", "CIE Z", "XYZ_Z"});
    rows(ColumnPart::Cabinet,
        {"Cabinet", "module", "Panel", "TILE", "Panel ID", "箱体", "Modul", "Kabinett", "Gehäuse", "Panel-Nr."});
    rows(ColumnPart::Row, {"Row", "Zeile", "行"});
    rows(ColumnPart::Column, {"Column", "col", "Spalte", "列"});
    rows(ColumnPart::Note, {"Note", "Remarks", "Bemerkung", "备注"});
    rows(ColumnPart::Number, {"id", "No.", "SAMPLE_ID", "序号"});
}

void ColumnNamesTest::parts()
{
    QFETCH(ColumnPart, part);
    const auto name = columnName(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(name);
    QCOMPARE(name->part, part);
}

void ColumnNamesTest::noNames_data()
{
    QTest::addColumn<int>("unused");
    for (const char *name : {"", "time", "Target x", "L*", "u", "v", "u*", "CIE 1960 u", "x10", "x (10°)",
             "x (CIE 1964)", "z", "CIE z", "xy", "XY", "%", "CCT (K)", "Δu'v'", "0.31", "(", "[cd/m2", "red", "Lvx"}) {
        QTest::newRow(name) << 0;
    }
    QTest::newRow("brackets only") << 0;
}

void ColumnNamesTest::noNames()
{
    const QByteArray tag(QTest::currentDataTag());
    QVERIFY(!columnName(QString::fromUtf8(tag == "brackets only" ? QByteArray(90, '(').append(10, ')') : tag)));
}

void ColumnNamesTest::units_data()
{
    QTest::addColumn<MeasuredUnit>("unit");
    const auto rows = [](MeasuredUnit unit, std::initializer_list<const char *> names) {
        for (const char *name : names) {
            QTest::newRow(name) << unit;
        }
    };
    rows(MeasuredUnit::CandelaPerSquareMetre,
        {"Lv", "Y (cd/m2)", "Y [cd/m²]", "Y (cd/m^2)", "Y (cd·m⁻²)", "L (cd m-2)", "nits", "Luminance [nit]",
            "亮度(cd/㎡)", "亮度（尼特）", "Lv / cd/m²", "Y (CD/M2)", "Y (cd/m?)", "Y (cd/m\uFFFD)"});
    rows(MeasuredUnit::FootLambert, {"fL", "Y (fL)", "Luminance (ft-L)", "Lv (fL)", "L [foot-lamberts]"});
    rows(MeasuredUnit::Relative, {"Y (%)", "Y (rel.)", "Luminance (relative)"});
    rows(MeasuredUnit::NotStated, {"Y", "L", "Luminance", "亮度", "Y (CIE 1931)"});
    rows(MeasuredUnit::NotKnown, {"Y (asb)", "Lv (mcd/m2)", "Luminance (lx)"});
}

void ColumnNamesTest::units()
{
    QFETCH(MeasuredUnit, unit);
    const auto name = columnName(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(name);
    QCOMPARE(name->unit, unit);
}

QTEST_GUILESS_MAIN(ColumnNamesTest)
#include "columnnamestest.moc"
