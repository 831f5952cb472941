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

//! A widget of the box: what to call it, and how to make one.
struct Entry {
    const char *name;
    const char *objectName;
    const char *base;
    const char *header;
    const char *icon;
    const char *toolTip;
    QSize size;
    QWidget *(*make)(QWidget *parent);
};

template <typename Chart>
QWidget *makeChart(QWidget *parent)
{
    // A chart renders nothing until it has a size.
    auto *chart = new Chart(parent);
    chart->setImageWidth(400);
    chart->setImageHeight(400);
    return chart;
}

template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

constexpr char chartIcon[] = ":/ceiechart/designer/chart.svg";

const Entry entries[] = {
    {"ceiechart::DiagramView", "diagramView", "QWidget", "ceiechart/diagram/diagramview.h",
        ":/ceiechart/designer/diagram.svg", "Chromaticity diagram to look at and to edit a target on", QSize(480, 480),
        make<DiagramView>},
    {"NewCEIE::CEIEGraphicsView", "chart", "QFrame", "ceiechart/widgets/ceiegraphicsview.h", chartIcon,
        "CIE 1931 x, y chart with gamuts and legend", QSize(402, 440), makeChart<NewCEIE::CEIEGraphicsView>},
    {"NewCEIE::CEIELegend", "legend", "QFrame", "ceiechart/widgets/ceielegend.h", chartIcon, "Legend of a chart",
        QSize(360, 32), make<NewCEIE::CEIELegend>},
    {"ceiechart::LegacyXyChart", "xyChart", "QFrame", "ceiechart/legacy/legacycharts.h", chartIcon,
        "Legacy CIE 1931 x, y chart, edited with the mouse", QSize(402, 440), makeChart<LegacyXyChart>},
    {"ceiechart::LegacyUvChart", "uvChart", "QFrame", "ceiechart/legacy/legacycharts.h", chartIcon,
        "Legacy CIE 1976 u', v' chart, edited with the mouse", QSize(402, 440), makeChart<LegacyUvChart>},
    {"CEIELegend", "legacyLegend", "QFrame", "ceiechart/legacy/ceielegend.h", chartIcon, "Legend of a legacy chart",
        QSize(360, 32), make<::CEIELegend>},
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
    QIcon icon() const override { return QIcon(QString::fromLatin1(m_entry.icon)); }
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
        return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\"><property name=\"geometry\"><rect>"
                              "<x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property></widget>"
                              "<customwidgets><customwidget><class>%1</class><extends>%6</extends>"
                              "<header location=\"global\">%5</header></customwidget></customwidgets></ui>")
            .arg(name(), QString::fromLatin1(m_entry.objectName))
            .arg(m_entry.size.width())
            .arg(m_entry.size.height())
            .arg(includeFile(), QString::fromLatin1(m_entry.base));
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
