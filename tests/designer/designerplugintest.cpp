// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/legacy/legacycharts.h>

#include <QApplication>
#include <QDir>
#include <QGraphicsView>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTest>
#include <QVector>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

class DesignerPluginTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void offersTheDiagramTheChartsAndTheirLegends();
    void makesEachWidget_data();
    void makesEachWidget();
    void domXmlNamesClassAndHeader_data();
    void domXmlNamesClassAndHeader();
    void iconsAreTheirOwn();
    void iconsNeedNoPluginForDrawings();
    void chartsAreEditedByProperties_data() { chartsShowAPicture_data(); }
    void chartsAreEditedByProperties();
    void newFormsHaveThePicturesSize();
    void diagramIsEditedByProperties();
    void chartsShowAPicture_data();
    void chartsShowAPicture();

private:
    QDesignerCustomWidgetInterface *find(const QString &name) const;
    static void rows();

    QPluginLoader m_loader{QStringLiteral(DESIGNER_PLUGIN)};
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

void DesignerPluginTest::initTestCase()
{
    QObject *plugin = m_loader.instance();
    QVERIFY2(plugin, qPrintable(m_loader.errorString()));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin);
    QVERIFY(collection);
    m_widgets = collection->customWidgets();
}

void DesignerPluginTest::cleanupTestCase()
{
    QVERIFY(m_loader.unload());
}

QDesignerCustomWidgetInterface *DesignerPluginTest::find(const QString &name) const
{
    for (QDesignerCustomWidgetInterface *widget : m_widgets) {
        if (widget->name() == name) {
            return widget;
        }
    }
    return nullptr;
}

void DesignerPluginTest::rows()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QByteArray>("base");
    const auto add = [](const char *name, const char *header, const char *base) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(header) << QByteArray(base);
    };
    add("ceiechart::DiagramView", "ceiechart/diagram/diagramview.h", "QWidget");
    add("NewCEIE::CEIEGraphicsView", "ceiechart/widgets/ceiegraphicsview.h", "QFrame");
    add("NewCEIE::CEIELegend", "ceiechart/widgets/ceielegend.h", "QFrame");
    add("ceiechart::LegacyXyChart", "ceiechart/legacy/legacycharts.h", "CEIEGraphicsView");
    add("ceiechart::LegacyUvChart", "ceiechart/legacy/legacycharts.h", "CEIEGraphicsView");
    add("CEIELegend", "ceiechart/legacy/ceielegend.h", "QFrame");
}

void DesignerPluginTest::offersTheDiagramTheChartsAndTheirLegends()
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
        names.append(widget->name());
        QVERIFY(!widget->isContainer());
        QVERIFY(!widget->group().isEmpty());
        QVERIFY(!widget->toolTip().isEmpty());
        QVERIFY(!widget->icon().pixmap(22, 22).isNull());
    }
    QCOMPARE(names,
        QStringList({"ceiechart::DiagramView", "NewCEIE::CEIEGraphicsView", "NewCEIE::CEIELegend",
            "ceiechart::LegacyXyChart", "ceiechart::LegacyUvChart", "CEIELegend"}));
}

void DesignerPluginTest::makesEachWidget_data()
{
    rows();
}

void DesignerPluginTest::makesEachWidget()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, base);
    QDesignerCustomWidgetInterface *entry = find(name);
    QVERIFY(entry);
    QVERIFY(!entry->isInitialized());
    entry->initialize(nullptr);
    QVERIFY(entry->isInitialized());

    QWidget form;
    QWidget *widget = entry->createWidget(&form);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &form);
    // A form is written with the name that the widget's own meta-object has.
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QCOMPARE(QByteArray(widget->metaObject()->superClass()->className()), base);
}

void DesignerPluginTest::domXmlNamesClassAndHeader_data()
{
    rows();
}

void DesignerPluginTest::domXmlNamesClassAndHeader()
{
    QFETCH(QString, name);
    QFETCH(QString, header);
    QDesignerCustomWidgetInterface *entry = find(name);
    QVERIFY(entry);
    QCOMPARE(entry->includeFile(), header);

    QString widgetClass;
    QString headerInForm;
    QXmlStreamReader xml(entry->domXml());
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("widget")) {
            widgetClass = xml.attributes().value(QStringLiteral("class")).toString();
        } else if (xml.name() == QLatin1String("header")) {
            QCOMPARE(xml.attributes().value(QStringLiteral("location")).toString(), QStringLiteral("global"));
            headerInForm = xml.readElementText();
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(widgetClass, name);
    QCOMPARE(headerInForm, header);
}

void DesignerPluginTest::iconsAreTheirOwn()
{
    QVector<QImage> icons;
    for (const QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
        const QImage icon = widget->icon().pixmap(24, 24).toImage();
        QCOMPARE(icon.size(), QSize(24, 24));
        // Both legends have the same one.
        QCOMPARE(icons.contains(icon), widget->name() == QLatin1String("CEIELegend"));
        icons.append(icon);
    }
}

void DesignerPluginTest::iconsNeedNoPluginForDrawings()
{
    const QStringList files = QDir(QStringLiteral(":/ceiechart/designer")).entryList();
    QVERIFY(files.size() >= 10);
    for (const QString &file : files) {
        QVERIFY2(file.endsWith(QLatin1String(".png")), qPrintable(file));
        const QImage image(QStringLiteral(":/ceiechart/designer/") + file);
        QCOMPARE(image.width(), file.contains(QLatin1String("@2x")) ? 48 : 24);
    }
}

void DesignerPluginTest::chartsAreEditedByProperties()
{
    QFETCH(QString, name);
    const std::unique_ptr<QWidget> chart(find(name)->createWidget(nullptr));
    chart->resize(500, 560);
    chart->show();
    QApplication::processEvents();
    const QList<QPair<const char *, QVariant>> edits = {{"graphLineColor", QColor(200, 0, 0)}, {"lightPicture", true},
        {"graphPictureColor", QColor(255, 255, 200)}, {"imageSize", QSize(300, 320)},
        {"legendAlignament", QVariant::fromValue(Qt::Alignment(Qt::AlignRight))}, {"isDrawCoordinate", false}};
    const QMetaObject *meta = chart->metaObject();
    for (const auto &[property, value] : edits) {
        const QMetaProperty offered = meta->property(meta->indexOfProperty(property));
        QVERIFY2(offered.isDesignable() && offered.isStored(), property);
        const QImage before = chart->grab().toImage();
        QVERIFY2(chart->setProperty(property, value), property);
        QApplication::processEvents();
        QVERIFY2(chart->grab().toImage() != before, property);
    }
}

// What is dropped on a form is shown in the finished program as in Qt Designer.
void DesignerPluginTest::newFormsHaveThePicturesSize()
{
    for (const QDesignerCustomWidgetInterface *widget : qAsConst(m_widgets)) {
        const QString size = QStringLiteral(
            "<property name=\"imageSize\"><size><width>400</width><height>400</height></size></property>");
        const bool isChart
            = widget->name().endsWith(QLatin1String("Chart")) || widget->name().endsWith(QLatin1String("GraphicsView"));
        QCOMPARE(widget->domXml().count(size), isChart ? 1 : 0);
    }
}

void DesignerPluginTest::diagramIsEditedByProperties()
{
    const std::unique_ptr<QWidget> view(find(QStringLiteral("ceiechart::DiagramView"))->createWidget(nullptr));
    view->resize(300, 300);
    const QImage before = view->grab().toImage();
    // What the property editor of Qt Designer offers is what it can write into a form.
    QStringList offered;
    const QMetaObject *meta = view->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        if (meta->property(i).isDesignable()) {
            offered.append(QString::fromLatin1(meta->property(i).name()));
        }
    }
    QCOMPARE(offered,
        QStringList({QStringLiteral("diagram"), QStringLiteral("zoomFactor"), QStringLiteral("readOnly"),
            QStringLiteral("digits"), QStringLiteral("readoutShown")}));
    QVERIFY(view->setProperty("diagram", QStringLiteral("Cie1976")));
    QVERIFY(view->grab().toImage() != before);
}

void DesignerPluginTest::chartsShowAPicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("current") << QStringLiteral("NewCEIE::CEIEGraphicsView");
    QTest::newRow("legacy x, y") << QStringLiteral("ceiechart::LegacyXyChart");
    QTest::newRow("legacy u', v'") << QStringLiteral("ceiechart::LegacyUvChart");
}

void DesignerPluginTest::chartsShowAPicture()
{
    QFETCH(QString, name);
    QDesignerCustomWidgetInterface *entry = find(name);
    QVERIFY(entry);
    const std::unique_ptr<QWidget> widget(entry->createWidget(nullptr));
    widget->resize(500, 560);
    widget->show();
    QApplication::processEvents();
    auto *view = widget->findChild<QGraphicsView *>();
    QVERIFY(view);
    const QImage picture = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRect shown = view->geometry().intersected(picture.rect());
    const QRgb background = picture.pixel(shown.center().x(), shown.top() + 3);
    int drawn = 0;
    for (int y = shown.top(); y <= shown.bottom(); ++y) {
        for (int x = shown.left(); x <= shown.right(); ++x) {
            drawn += picture.pixel(x, y) != background;
        }
    }
    QVERIFY2(drawn > 5000, qPrintable(QString::number(drawn)));
}

QTEST_MAIN(DesignerPluginTest)

#include "designerplugintest.moc"
