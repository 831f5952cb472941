// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_DESIGNER_CHARTPLUGINS_P_H
#define CEIECHART_DESIGNER_CHARTPLUGINS_P_H

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>
#include <vector>

namespace ceiechart {

/*! \brief The widgets that the plugin provides to Qt Designer: the charts and legends of both generations. */
class ChartPlugins : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit ChartPlugins(QObject *parent = nullptr);
    ~ChartPlugins() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    std::vector<std::unique_ptr<QDesignerCustomWidgetInterface>> m_widgets;
};

} // namespace ceiechart

#endif
