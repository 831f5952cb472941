// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/designer/chartplugins_p.h>

#include <ceiechart/diagram/diagramview.h>
#include <ceiechart/legacy/legacycharts.h>
#include <ceiechart/widgets/ceiegraphicsview.h>
#include <ceiechart/widgets/translations.h>

#include <QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace ceiechart {

namespace {

/*! \brief The description of a widget in the widget box, and a function that creates it. */
struct Entry {
    const char *name;
    const char *objectName;
    const char *base;
    const char *header;
    const char *icon;
    const char *toolTip;
    QSize size; //!< of the widget
    QSize imageSize; //!< of the picture in a new form; empty for a widget without this property
    QWidget *(*make)(QWidget *parent);
};

constexpr QSize pictureSize(400, 400);

template <typename Chart>
QWidget *makeChart(QWidget *parent)
{
    // A chart draws no picture before it has a size, and a form can be without one.
    auto *chart = new Chart(parent);
    chart->setImageSize(pictureSize);
    return chart;
}

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

const Entry entries[] = {
    {"ceiechart::DiagramView", "diagramView", "QWidget", "ceiechart/diagram/diagramview.h", "diagram",
        "Chromaticity diagram to look at and to edit a target on", QSize(480, 480), QSize(), make<DiagramView>},
    {"NewCEIE::CEIEGraphicsView", "chart", "QFrame", "ceiechart/widgets/ceiegraphicsview.h", "chart",
        "CIE 1931 x, y chart with gamuts and legend", QSize(402, 440), pictureSize,
        makeChart<NewCEIE::CEIEGraphicsView>},
    {"NewCEIE::CEIELegend", "legend", "QFrame", "ceiechart/widgets/ceielegend.h", "legend", "Legend of a chart",
        QSize(360, 32), QSize(), make<NewCEIE::CEIELegend>},
    {"ceiechart::LegacyXyChart", "xyChart", "QFrame", "ceiechart/legacy/legacycharts.h", "xychart",
        "Legacy CIE 1931 x, y chart, edited with the mouse", QSize(402, 440), pictureSize, makeChart<LegacyXyChart>},
    {"ceiechart::LegacyUvChart", "uvChart", "QFrame", "ceiechart/legacy/legacycharts.h", "uvchart",
        "Legacy CIE 1976 u', v' chart, edited with the mouse", QSize(402, 440), pictureSize, makeChart<LegacyUvChart>},
    {"CEIELegend", "legacyLegend", "QFrame", "ceiechart/legacy/ceielegend.h", "legend", "Legend of a legacy chart",
        QSize(360, 32), QSize(), make<::CEIELegend>},
};

class ChartPlugin : public QDesignerCustomWidgetInterface {
public:
    explicit ChartPlugin(const Entry &entry)
        : m_entry(entry)
    {
    }

    QString name() const override { return QString::fromLatin1(m_entry.name); }
    QString group() const override { return QStringLiteral("Chromaticity Charts"); }
    QString toolTip() const override { return QString::fromLatin1(m_entry.toolTip); }
    QString whatsThis() const override { return toolTip(); }
    QString includeFile() const override { return QString::fromLatin1(m_entry.header); }
    QIcon icon() const override
    {
        return QIcon(QStringLiteral(":/ceiechart/designer/%1.png").arg(QLatin1String(m_entry.icon)));
    }
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return m_entry.make(parent); }
    bool isInitialized() const override { return m_initialized; }
    void initialize(QDesignerFormEditorInterface *) override
    {
        if (!m_initialized) {
            installTranslations();
            m_initialized = true;
        }
    }

    QString domXml() const override
    {
        // With the size of the picture, without which the chart of the finished program would be blank.
        const QString imageSize = m_entry.imageSize.isEmpty()
            ? QString()
            : QStringLiteral(
                "<property name=\"imageSize\"><size><width>%1</width><height>%2</height></size></property>")
                  .arg(m_entry.imageSize.width())
                  .arg(m_entry.imageSize.height());
        return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\"><property name=\"geometry\"><rect>"
                              "<x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property>%7</widget>"
                              "<customwidgets><customwidget><class>%1</class><extends>%6</extends>"
                              "<header location=\"global\">%5</header></customwidget></customwidgets></ui>")
            .arg(name(), QString::fromLatin1(m_entry.objectName))
            .arg(m_entry.size.width())
            .arg(m_entry.size.height())
            .arg(includeFile(), QString::fromLatin1(m_entry.base), imageSize);
    }

private:
    const Entry &m_entry;
    bool m_initialized = false;
};

} // namespace

ChartPlugins::ChartPlugins(QObject *parent)
    : QObject(parent)
{
    for (const Entry &entry : entries) {
        m_widgets.push_back(std::make_unique<ChartPlugin>(entry));
    }
}

ChartPlugins::~ChartPlugins() = default;

QList<QDesignerCustomWidgetInterface *> ChartPlugins::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const auto &widget : m_widgets) {
        widgets.append(widget.get());
    }
    return widgets;
}

} // namespace ceiechart
