// SPDX-License-Identifier: MIT
#include "window/exportdialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <cmath>

namespace gamutviewer {

ExportDialog::ExportDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Export chart"));
    auto *layout = new QFormLayout(this);
    const ChartExtent extent;
    const auto addSide = [&](const QString &text, int value) {
        auto *box = new QSpinBox(this);
        box->setRange(1, maximumPictureSide);
        box->setValue(value);
        box->setSuffix(tr(" px"));
        layout->addRow(text, box);
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &ExportDialog::refresh);
        return box;
    };
    m_width = addSide(tr("&Width:"), extent.size.width());
    m_height = addSide(tr("&Height:"), extent.size.height());
    m_ratio = new QDoubleSpinBox(this);
    m_ratio->setRange(0.5, 8.0);
    m_ratio->setSingleStep(0.5);
    m_ratio->setValue(extent.devicePixelRatio);
    m_ratio->setToolTip(tr("Number of PNG pixels per pixel of the size above"));
    layout->addRow(tr("Device &pixel ratio:"), m_ratio);
    m_pixels = new QLabel(this);
    layout->addRow(m_pixels);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_accept = buttons->button(QDialogButtonBox::Ok);
    m_accept->setText(tr("&Export…"));
    layout->addRow(buttons);
    connect(m_ratio, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &ExportDialog::refresh);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    refresh();
}

ChartExtent ExportDialog::extent() const
{
    ChartExtent extent;
    extent.size = QSize(m_width->value(), m_height->value());
    extent.devicePixelRatio = m_ratio->value();
    return extent;
}

void ExportDialog::refresh()
{
    const QSize pixels(
        int(std::lround(m_width->value() * m_ratio->value())), int(std::lround(m_height->value() * m_ratio->value())));
    const bool fits = pixels.width() >= 1 && pixels.height() >= 1 && pixels.width() <= maximumPictureSide
        && pixels.height() <= maximumPictureSide;
    m_pixels->setText(fits ? tr("A PNG will have %1 × %2 pixels.").arg(pixels.width()).arg(pixels.height())
                           : tr("At most %1 pixels per side.").arg(maximumPictureSide));
    m_accept->setEnabled(fits);
}

} // namespace gamutviewer
