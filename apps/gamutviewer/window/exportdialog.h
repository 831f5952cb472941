// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_EXPORTDIALOG_H
#define GAMUTVIEWER_EXPORTDIALOG_H

#include "drawing/chartexport.h"

#include <QDialog>

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace gamutviewer {

/*! \brief Asks how large an exported chart is to be. */
class ExportDialog : public QDialog {
    Q_OBJECT

public:
    explicit ExportDialog(QWidget *parent = nullptr);

    ChartExtent extent() const;

private:
    void refresh();

    QSpinBox *m_width;
    QSpinBox *m_height;
    QDoubleSpinBox *m_ratio;
    QLabel *m_pixels;
    QPushButton *m_accept;
};

} // namespace gamutviewer

#endif
