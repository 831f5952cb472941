// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_EXPORTDIALOG_H
#define GAMUTVIEWER_EXPORTDIALOG_H

#include "drawing/picture.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace gamutviewer {

/*! \brief Asks what an exported picture is to show, how large it is to be, and in which format. */
class ExportDialog : public QDialog {
    Q_OBJECT

public:
    /*! \param shown what the window shows, whose layers every diagram has */
    explicit ExportDialog(const Picture &shown, QWidget *parent = nullptr);

    Picture picture() const;
    PictureExtent extent() const;
    PictureFormat format() const;

private:
    void refresh();

    Picture m_shown;
    QComboBox *m_what;
    QCheckBox *m_key;
    QComboBox *m_format;
    QSpinBox *m_width;
    QSpinBox *m_height;
    QDoubleSpinBox *m_ratio;
    QLabel *m_note;
    QPushButton *m_accept;
};

} // namespace gamutviewer

#endif
