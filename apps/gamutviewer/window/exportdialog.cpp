// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "window/exportdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <cmath>

namespace gamutviewer {

namespace {

// What is not a diagram.
constexpr int asShown = -1;
constexpr int libraryChart = -2;

} // namespace

ExportDialog::ExportDialog(const Picture &shown, QWidget *parent)
    : QDialog(parent)
    , m_shown(shown)
{
    setWindowTitle(tr("Export picture"));
    auto *layout = new QFormLayout(this);
    m_what = new QComboBox(this);
    if (!shown.isLibraryChart) {
        m_what->addItem(tr("As in the window"), asShown);
    }
    for (const Model::Diagram diagram : {Model::Diagram::Cie1931, Model::Diagram::Cie1976, Model::Diagram::Cie1960}) {
        m_what->addItem(QString::fromUtf8(Model::diagramTraits(diagram).name), int(diagram));
    }
    m_what->addItem(tr("Library chart"), libraryChart);
    m_what->setCurrentIndex(shown.isLibraryChart ? m_what->count() - 1 : 0);
    layout->addRow(tr("&Show:"), m_what);
    m_key = new QCheckBox(tr("Names in a &key"), this);
    m_key->setChecked(shown.hasKey);
    layout->addRow(QString(), m_key);
    m_format = new QComboBox(this);
    for (const PictureFormat format : {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        m_format->addItem(pictureSuffix(format).toUpper(), int(format));
    }
    layout->addRow(tr("&Format:"), m_format);

    // As large as in the window, so that "as in the window" is just that.
    const QSize size = shown.view.size().isEmpty()
        ? PictureExtent().size
        : shown.view.size().toSize().boundedTo({maximumPictureSide, maximumPictureSide});
    const auto addSide = [&](const QString &text, int value) {
        auto *box = new QSpinBox(this);
        box->setRange(1, maximumPictureSide);
        box->setValue(value);
        box->setSuffix(tr(" px"));
        layout->addRow(text, box);
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &ExportDialog::refresh);
        return box;
    };
    m_width = addSide(tr("&Width:"), size.width());
    m_height = addSide(tr("&Height:"), size.height());
    m_ratio = new QDoubleSpinBox(this);
    m_ratio->setRange(0.5, 8.0);
    m_ratio->setSingleStep(0.5);
    m_ratio->setValue(PictureExtent().devicePixelRatio);
    m_ratio->setToolTip(tr("Number of PNG pixels per pixel of the size above"));
    layout->addRow(tr("Device &pixel ratio:"), m_ratio);
    m_note = new QLabel(this);
    layout->addRow(m_note);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_accept = buttons->button(QDialogButtonBox::Ok);
    m_accept->setText(tr("&Export…"));
    layout->addRow(buttons);
    for (const QComboBox *box : {m_what, m_format}) {
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ExportDialog::refresh);
    }
    connect(m_key, &QCheckBox::toggled, this, &ExportDialog::refresh);
    connect(m_ratio, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &ExportDialog::refresh);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    refresh();
}

Picture ExportDialog::picture() const
{
    Picture picture = m_shown;
    const int what = m_what->currentData().toInt();
    picture.isLibraryChart = what == libraryChart;
    picture.hasKey = m_key->isChecked();
    if (what != asShown) {
        picture.wall.reset();
    }
    if (what >= 0) {
        picture.view = ceiechart::DiagramViewport(Model::Diagram(what), QSizeF(extent().size));
    }
    return picture;
}

PictureExtent ExportDialog::extent() const
{
    PictureExtent extent;
    extent.size = QSize(m_width->value(), m_height->value());
    extent.devicePixelRatio = m_ratio->isEnabled() ? m_ratio->value() : 1.0;
    return extent;
}

PictureFormat ExportDialog::format() const
{
    return m_format->isEnabled() ? PictureFormat(m_format->currentData().toInt()) : PictureFormat::Png;
}

void ExportDialog::refresh()
{
    const bool isLibraryChart = m_what->currentData().toInt() == libraryChart;
    const bool isWall = m_shown.wall && m_what->currentData().toInt() == asShown;
    m_key->setEnabled(!isLibraryChart && !isWall);
    m_format->setEnabled(!isLibraryChart);
    m_ratio->setEnabled(!isLibraryChart && format() == PictureFormat::Png);
    const PictureExtent asked = extent();
    const QSize pixels(int(std::lround(asked.size.width() * asked.devicePixelRatio)),
        int(std::lround(asked.size.height() * asked.devicePixelRatio)));
    const bool fits = pixels.width() >= 1 && pixels.height() >= 1 && pixels.width() <= maximumPictureSide
        && pixels.height() <= maximumPictureSide;
    if (!fits) {
        m_note->setText(tr("At most %1 pixels per side.").arg(maximumPictureSide));
    } else if (lacksRoomForKey(picture(), asked.size)) {
        m_note->setText(tr("Too small for the key, which will be left out."));
    } else if (format() == PictureFormat::Png) {
        m_note->setText(tr("%1 × %2 pixels").arg(pixels.width()).arg(pixels.height()));
    } else {
        m_note->setText(tr("Lines and texts as vectors, the colours as one image"));
    }
    m_accept->setEnabled(fits);
}

} // namespace gamutviewer
