// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_WINDOWFIXTURE_H
#define TESTS_APPS_WINDOWFIXTURE_H

#include "drawing/documentview.h"
#include "editing/document.h"
#include "editing/openedfiles.h"
#include "editing/targetedits.h"
#include "editing/targetsession.h"
#include "window/adddialog.h"
#include "window/diagrampage.h"
#include "window/viewerwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

/*! A window on the sample, with settings of its own. */
struct WindowFixture {
    WindowFixture()
    {
        useSettings(settings.path());
        window = std::make_unique<gamutviewer::ViewerWindow>();
        const auto sample = gamutviewer::readGamutFile(QStringLiteral(SAMPLE_FILE));
        if (sample) {
            window->setDescription(sample->description, QString());
        }
        window->resize(1024, 768);
        window->show();
        activate();
    }

    /*! As a window manager does when the window comes up and when a dialog closes. */
    void activate()
    {
        QApplication::setActiveWindow(window.get());
        if (!QTest::qWaitForWindowActive(window.get())) {
            qFatal("the window does not become active");
        }
    }

    static void useSettings(const QString &folder)
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    }

    gamutviewer::Document &document() { return *window->document(); }
    QPointF xy(gamutviewer::Vertex vertex)
    {
        return gamutviewer::xyOf(gamutviewer::targetAt(document().target()->getTargets(), vertex));
    }
    /*! The sample has one; without it the target is held against the original alone. */
    void forgetMeasuredGamut()
    {
        gamutviewer::DisplayDescription description = document().description();
        description.measured.clear();
        window->setDescription(description, QString());
    }
    /*! Makes a change that can be lost. */
    void change() { window->session()->setChromaticity(gamutviewer::Vertex::Red, QPointF(0.66, 0.32)); }
    void show(QWidget *page)
    {
        window->pages()->setCurrentWidget(page);
        QCoreApplication::processEvents();
    }

    QTemporaryDir settings;
    std::unique_ptr<gamutviewer::ViewerWindow> window;
};

/*! Writes \a bytes to \a name in \a folder; returns where, or nothing when that fails. */
inline QString writeFile(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

/*! Answers the next message box with \a button, and keeps its text. */
class Answer : public QObject {
public:
    explicit Answer(QMessageBox::StandardButton button)
        : m_button(button)
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box && m_text.isEmpty()) {
                m_text = box->text();
                QTest::mouseClick(box->button(m_button), Qt::LeftButton);
            }
        });
        m_timer.start(1);
    }

    /*! Empty when no box came up. */
    QString text() const { return m_text; }

private:
    QMessageBox::StandardButton m_button;
    QString m_text;
    QTimer m_timer;
};

/*! Answers the next question what becomes of files that are opened. */
class FilesAnswer : public QObject {
public:
    enum Choice { Add, Alone, Cancel };

    /*! \a role, if any, is chosen for the first file. */
    explicit FilesAnswer(Choice choice, std::optional<gamutviewer::GamutRole> role = {})
    {
        connect(&m_timer, &QTimer::timeout, this, [this, choice, role] {
            auto *dialog = qobject_cast<gamutviewer::AddDialog *>(QApplication::activeModalWidget());
            if (!dialog || m_isAsked) {
                return;
            }
            m_isAsked = true;
            if (QComboBox *box = dialog->roleBox(0)) {
                m_usual = box->currentText();
                if (role) {
                    box->setFocus();
                    QTest::keyClick(box, Qt::Key_Home);
                    while (box->currentData() != int(*role) && box->currentIndex() < box->count() - 1) {
                        QTest::keyClick(box, Qt::Key_Down);
                    }
                }
            }
            m_note = dialog->note(0)->text();
            m_mayOpenAlone = dialog->aloneButton();
            if (choice == Cancel) {
                QTest::keyClick(dialog, Qt::Key_Escape);
            } else {
                QTest::mouseClick(choice == Add ? dialog->addButton() : dialog->aloneButton(), Qt::LeftButton);
            }
        });
        m_timer.start(1);
    }

    bool isAsked() const { return m_isAsked; }
    bool mayOpenAlone() const { return m_mayOpenAlone; }
    /*! What the first file was to become unless asked otherwise. */
    QString usual() const { return m_usual; }
    /*! What was said of the first file as it was added. */
    QString note() const { return m_note; }

private:
    bool m_isAsked = false;
    bool m_mayOpenAlone = false;
    QString m_usual;
    QString m_note;
    QTimer m_timer;
};

/*! The pointer on a diagram. */
class DiagramPointer {
public:
    explicit DiagramPointer(gamutviewer::DocumentView *view)
        : m_view(view)
    {
    }

    void press(const QPointF &xy) { QTest::mousePress(m_view, Qt::LeftButton, Qt::NoModifier, at(xy)); }
    // QTest::mouseMove() tells of no button held.
    void move(const QPointF &xy, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        const QPoint position = at(xy);
        QMouseEvent event(
            QEvent::MouseMove, position, m_view->mapToGlobal(position), Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(m_view, &event);
    }
    void release(const QPointF &xy) { QTest::mouseRelease(m_view, Qt::LeftButton, Qt::NoModifier, at(xy)); }
    void drag(const QPointF &from, const QPointF &to)
    {
        press(from);
        move((from + to) / 2);
        move(to);
        release(to);
    }
    /*! What a pixel is worth, in x, y. */
    double pixel() const { return 1.0 / m_view->viewport().scale(); }

private:
    QPoint at(const QPointF &xy) const { return m_view->viewport().toPosition(xy).toPoint(); }

    gamutviewer::DocumentView *m_view;
};

#endif
