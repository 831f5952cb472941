// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/exportdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

using namespace gamutviewer;
using ceiechart::DiagramLayer;
using ceiechart::DiagramViewport;

class ExportDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersWhatIsShown();
    void offersEveryDiagram();
    void libraryChartIsAPng();
    void formats();
    void tellsOfAKeyWithoutRoom();
    void refusesTooManyPixels();
    void libraryChartIsShown();
};

namespace {

Picture shown()
{
    Picture picture;
    picture.content.gamuts.append({Model::rec709(), ceiechart::GamutRole::Target});
    picture.content.layers.setFlag(DiagramLayer::Grid, false);
    picture.view = DiagramViewport(Model::Diagram::Cie1976, QSizeF(640, 480)).fittedTo(Model::rec709().getTargets());
    return picture;
}

//! The dialog and its fields.
struct Fields {
    explicit Fields(const Picture &picture)
        : dialog(picture)
    {
        const auto boxes = dialog.findChildren<QComboBox *>();
        what = boxes.at(0);
        format = boxes.at(1);
        const auto sides = dialog.findChildren<QSpinBox *>();
        width = sides.at(0);
        height = sides.at(1);
    }

    bool isAllowed() { return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled(); }
    bool says(const QString &text)
    {
        const auto labels = dialog.findChildren<QLabel *>();
        return std::any_of(
            labels.begin(), labels.end(), [&text](const QLabel *label) { return label->text().contains(text); });
    }
    void choose(const QString &item) { what->setCurrentIndex(what->findText(item)); }

    ExportDialog dialog;
    QComboBox *what;
    QComboBox *format;
    QSpinBox *width;
    QSpinBox *height;
    QDoubleSpinBox *ratio = dialog.findChild<QDoubleSpinBox *>();
    QCheckBox *key = dialog.findChild<QCheckBox *>();
};

} // namespace

void ExportDialogTest::offersWhatIsShown()
{
    Fields fields(shown());
    const Picture picture = fields.dialog.picture();
    QCOMPARE(picture.view, shown().view);
    QCOMPARE(picture.content.layers, shown().content.layers);
    QVERIFY(picture.hasKey && !picture.isLibraryChart);
    QCOMPARE(fields.dialog.extent().size, QSize(640, 480));
    QCOMPARE(fields.dialog.extent().devicePixelRatio, 1.0);
    QCOMPARE(fields.dialog.format(), PictureFormat::Png);
    fields.key->setChecked(false);
    QVERIFY(!fields.dialog.picture().hasKey);
}

void ExportDialogTest::offersEveryDiagram()
{
    Fields fields(shown());
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
        fields.choose(QString::fromUtf8(Model::diagramTraits(diagram).name));
        const Picture picture = fields.dialog.picture();
        QCOMPARE(picture.view.diagram(), diagram);
        QVERIFY(picture.view.showsAll());
        QCOMPARE(picture.content.layers, shown().content.layers);
    }
}

void ExportDialogTest::libraryChartIsAPng()
{
    Fields fields(shown());
    fields.format->setCurrentIndex(fields.format->findText("SVG"));
    fields.ratio->setValue(2.0);
    fields.choose("Library chart");
    QVERIFY(fields.dialog.picture().isLibraryChart);
    QCOMPARE(fields.dialog.format(), PictureFormat::Png);
    QCOMPARE(fields.dialog.extent().devicePixelRatio, 1.0);
    QVERIFY(!fields.key->isEnabled() && !fields.format->isEnabled() && !fields.ratio->isEnabled());
}

void ExportDialogTest::formats()
{
    Fields fields(shown());
    fields.ratio->setValue(2.0);
    QCOMPARE(fields.dialog.extent().devicePixelRatio, 2.0);
    QVERIFY(fields.says(QString::fromUtf8("1280 × 960")));
    fields.format->setCurrentIndex(fields.format->findText("PDF"));
    QCOMPARE(fields.dialog.format(), PictureFormat::Pdf);
    QVERIFY(!fields.ratio->isEnabled());
    fields.format->setCurrentIndex(fields.format->findText("SVG"));
    QCOMPARE(fields.dialog.format(), PictureFormat::Svg);
}

void ExportDialogTest::tellsOfAKeyWithoutRoom()
{
    Fields fields(shown());
    const QString note = QStringLiteral("left out");
    QVERIFY(!fields.says(note));
    fields.width->setValue(80);
    fields.height->setValue(60);
    QVERIFY(fields.says(note) && fields.isAllowed());
    fields.key->setChecked(false);
    QVERIFY(!fields.says(note));
}

void ExportDialogTest::refusesTooManyPixels()
{
    Fields fields(shown());
    fields.width->setValue(5000);
    QVERIFY(fields.isAllowed());
    fields.ratio->setValue(2.0);
    QVERIFY(!fields.isAllowed() && fields.says("8192"));
    fields.format->setCurrentIndex(fields.format->findText("SVG"));
    QVERIFY(fields.isAllowed());
}

void ExportDialogTest::libraryChartIsShown()
{
    Picture picture = shown();
    picture.isLibraryChart = true;
    Fields fields(picture);
    QVERIFY(fields.dialog.picture().isLibraryChart);
    QCOMPARE(fields.what->findText("As in the window"), -1);
    fields.what->setCurrentIndex(0);
    QVERIFY(!fields.dialog.picture().isLibraryChart);
}

QTEST_MAIN(ExportDialogTest)
#include "exportdialogtest.moc"
