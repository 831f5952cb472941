// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "windowfixture.h"

#include "display/valuetexts.h"
#include "drawing/layerswitches.h"
#include "editing/gamutparts.h"
#include "editing/targetsession.h"
#include "panel/copytable.h"
#include "panel/groupedtable.h"
#include "panel/hintlabel.h"
#include "panel/layerkey.h"
#include "panel/sidepanel.h"
#include "panel/targeteditor.h"
#include "panel/warningbar.h"
#include "program/interfacetranslations.h"
#include "window/comparepage.h"
#include "window/lens.h"
#include "window/librarypage.h"
#include "window/tolerancesmenu.h"
#include "window/wallpage.h"

#include <ceiechart/diagram/chartstyle.h>
#include <ceiechart/legacy/ceiegraphicsview.h>
#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStatusBar>
#include <QtTest>

using namespace gamutviewer;

class ViewerWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void exportsWhatThePageShows();
    void copiesThePicture();
    void geometryAndPageAreRemembered();
    void pagesByKeyboard();
    void keysOfTheHelpWork();
    void keyboardGoesToThePage();
    void pointerIsReadOut();
    void hintsAreThoseOfThePage();
    void hintsAreNotCut_data();
    void hintsAreNotCut();
    void mnemonicsAreUnique_data();
    void mnemonicsAreUnique();
    void tolerancesAreChosenAndRemembered();
    void fitsASmallScreen_data();
    void fitsASmallScreen();
    void everyFieldHasAName();
    void everythingIsReachedByTab();
    void speaksChinese();
};

void ViewerWindowTest::cleanup()
{
    installInterfaceTranslations(QLocale(QLocale::English));
}

void ViewerWindowTest::exportsWhatThePageShows()
{
    WindowFixture f;
    const PictureExtent extent{QSize(300, 200), 2.0};
    const Picture picture = f.window->currentPage()->picture();
    const QString png = f.settings.filePath(QStringLiteral("chart.png"));
    QVERIFY(f.window->exportTo(png, picture, extent));
    QCOMPARE(QImage(png).size(), QSize(600, 400));
    QImage expected = pixelsOf(picture, extent).convertToFormat(QImage::Format_RGB32);
    expected.setDevicePixelRatio(1.0);
    QCOMPARE(QImage(png).convertToFormat(QImage::Format_RGB32), expected);
    for (const char *name : {"chart.svg", "chart.pdf"}) {
        const QString file = f.settings.filePath(QLatin1String(name));
        QVERIFY(f.window->exportTo(file, picture, extent));
        QVERIFY(QFileInfo(file).size() > 1000);
    }
    const Answer answer(QMessageBox::Ok);
    QVERIFY(!f.window->exportTo(f.settings.filePath(QStringLiteral("chart.doc")), picture, extent));
    QVERIFY(answer.text().contains(QLatin1String(".svg")));
    // What the switches and the view let through, and each page its own.
    f.window->diagramPage()->switches()->setShown(ceiechart::DiagramLayer::Grid, false);
    f.window->diagramPage()->view()->setDiagram(Model::Diagram::Cie1976);
    const Picture other = f.window->currentPage()->picture();
    QVERIFY(!other.content.layers.testFlag(ceiechart::DiagramLayer::Grid));
    QCOMPARE(other.view.diagram(), Model::Diagram::Cie1976);
    f.show(f.window->libraryPage());
    QVERIFY(f.window->currentPage()->picture().isLibraryChart);
}

void ViewerWindowTest::copiesThePicture()
{
    WindowFixture f;
    QApplication::clipboard()->clear();
    QTest::keyClick(f.window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QImage copied = QApplication::clipboard()->image();
    const Picture shown = f.window->currentPage()->picture();
    const PictureExtent extent{f.window->diagramPage()->view()->size(), f.window->devicePixelRatioF()};
    QVERIFY(
        copied.convertToFormat(QImage::Format_RGB32) == pixelsOf(shown, extent).convertToFormat(QImage::Format_RGB32));
}

void ViewerWindowTest::geometryAndPageAreRemembered()
{
    QTemporaryDir settings;
    WindowFixture::useSettings(settings.path());
    QSize size;
    {
        ViewerWindow window;
        window.resize(1100, 790);
        window.show();
        window.pages()->setCurrentIndex(2);
        size = window.size();
        window.close();
    }
    ViewerWindow window;
    window.show();
    QCOMPARE(window.size(), size);
    QCOMPARE(window.pages()->currentIndex(), 2);
}

void ViewerWindowTest::pagesByKeyboard()
{
    WindowFixture f;
    for (int page = 3; page >= 0; --page) {
        QTest::keyClick(f.window.get(), Qt::Key(Qt::Key_1 + page), Qt::ControlModifier);
        QCOMPARE(f.window->pages()->currentIndex(), page);
    }
}

void ViewerWindowTest::keysOfTheHelpWork()
{
    WindowFixture f;
    const Answer answer(QMessageBox::Ok);
    QTest::keyClick(f.window.get(), Qt::Key_F1);
    const QString text = answer.text();
    f.activate();
    ceiechart::DiagramView *view = f.window->diagramPage()->view();
    view->setFocus();
    const auto hasLine = [&text](const char *key) { return text.contains(QString::fromUtf8(key)); };
    for (const auto &[key, name] : {std::pair(Qt::Key_Home, "Home"), std::pair(Qt::Key_0, "0 or")}) {
        QVERIFY2(hasLine(name), name);
        view->setZoomFactor(9.0);
        QTest::keyClick(view, key);
        QCOMPARE(view->zoomFactor(), 1.0);
    }
    QVERIFY(hasLine("+ and −"));
    QTest::keyClick(view, Qt::Key_Plus);
    QVERIFY(view->zoomFactor() > 1.0);
    QTest::keyClick(view, Qt::Key_Minus);
    QVERIFY(std::fabs(view->zoomFactor() - 1.0) < 1e-9);
    // An edit by a key, and the keys of the history.
    QVERIFY(hasLine("R, G, B, W"));
    const QPointF before = f.xy(Vertex::Green);
    QTest::keyClick(view, Qt::Key_G);
    QTest::keyClick(view, Qt::Key_Left);
    const QPointF after = f.xy(Vertex::Green);
    QVERIFY(after != before);
    for (const auto &[key, modifiers, name] :
        {std::tuple(Qt::Key_Z, Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier), "Ctrl+Shift+Z"),
            std::tuple(Qt::Key_Y, Qt::KeyboardModifiers(Qt::ControlModifier), "Ctrl+Y")}) {
        QVERIFY2(hasLine(name), name);
        QVERIFY(hasLine("Ctrl+Z"));
        QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.xy(Vertex::Green), before);
        QTest::keyClick(view, key, modifiers);
        QCOMPARE(f.xy(Vertex::Green), after);
    }
    QVERIFY(hasLine("Alt+arrows"));
    const QPointF centre = view->centre();
    QTest::keyClick(view, Qt::Key_Right, Qt::AltModifier);
    QVERIFY(view->centre() != centre);
    QCOMPARE(f.xy(Vertex::Green), after);
    QTest::keyClick(view, Qt::Key_Escape);
    QVERIFY(!view->selectedVertex());
    // As many as there are pages.
    QVERIFY(hasLine(qPrintable(QStringLiteral("Ctrl+1 to Ctrl+%1").arg(f.window->pages()->count()))));
}

void ViewerWindowTest::keyboardGoesToThePage()
{
    WindowFixture f;
    const QWidget *inside[] = {f.window->diagramPage()->view(), f.window->comparePage()->table(),
        f.window->wallPage()->emptyNote(), f.window->libraryPage()->currentChart()->view()};
    QCOMPARE(static_cast<const QWidget *>(QApplication::focusWidget()), inside[0]);
    for (int page = 3; page >= 0; --page) {
        QTest::keyClick(f.window.get(), Qt::Key(Qt::Key_1 + page), Qt::ControlModifier);
        QCOMPARE(static_cast<const QWidget *>(QApplication::focusWidget()), inside[page]);
    }
}

void ViewerWindowTest::pointerIsReadOut()
{
    WindowFixture f;
    for (DocumentView *view : {f.window->diagramPage()->view(), f.window->diagramPage()->lens()->view()}) {
        DiagramPointer pointer(view);
        pointer.move(QPointF(0.3127, 0.3290), Qt::NoButton);
        const QString text = f.window->readout()->text();
        QVERIFY2(text.contains(QRegularExpression(QStringLiteral("x 0\\.31.* K"))), qPrintable(text));
        QVERIFY(f.window->readout()->accessibleName().contains(text));
        // Within a pixel of where the diagram shows it.
        const QRegularExpressionMatch read = QRegularExpression(QStringLiteral("x (\\S+)  y (\\S+)")).match(text);
        QVERIFY(qAbs(read.captured(1).toDouble() - 0.3127) < pointer.pixel() + 1e-4);
        QVERIFY(qAbs(read.captured(2).toDouble() - 0.3290) < pointer.pixel() + 1e-4);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view, &leave);
        QVERIFY(f.window->readout()->text().isEmpty());
    }
    DiagramPointer pointer(f.window->diagramPage()->view());
    pointer.move(QPointF(0.1, 0.8), Qt::NoButton);
    QVERIFY(!f.window->readout()->text().isEmpty());
    QVERIFY(!f.window->readout()->text().contains(QLatin1String(" K")));
}

void ViewerWindowTest::hintsAreThoseOfThePage()
{
    WindowFixture f;
    const auto says = [&] {
        const QList<QLabel *> labels = f.window->statusBar()->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [](const QLabel *label) { return label->text().contains(QLatin1String("Shift")); });
    };
    QVERIFY(says());
    f.show(f.window->comparePage());
    QVERIFY(!says());
}

void ViewerWindowTest::hintsAreNotCut_data()
{
    fitsASmallScreen_data();
}

void ViewerWindowTest::hintsAreNotCut()
{
    QFETCH(QLocale, locale);
    installInterfaceTranslations(locale);
    WindowFixture f;
    auto *hints = f.window->statusBar()->findChild<HintLabel *>();
    QVERIFY(hints);
    const auto isWhole = [hints](const QStringList &forms) {
        return forms.contains(hints->text())
            && hints->fontMetrics().horizontalAdvance(hints->text()) <= hints->contentsRect().width();
    };
    const QStringList forms = f.window->diagramPage()->hints();
    const QString all = forms.first();
    QCOMPARE(hints->accessibleName(), all);
    QCOMPARE(hints->text(), all);
    // With a readout as long as they come, every key is still named.
    DiagramPointer pointer(f.window->diagramPage()->view());
    pointer.move(QPointF(0.2720, 0.2650), Qt::NoButton);
    QCoreApplication::processEvents();
    QVERIFY2(f.window->readout()->text().contains(QStringLiteral("Duv -0")), qPrintable(f.window->readout()->text()));
    QVERIFY(isWhole(forms));
    for (const char *key : {"Shift", "Ctrl", "Alt", "Esc"}) {
        QVERIFY2(hints->text().contains(QLatin1String(key)), qPrintable(hints->text()));
    }
    for (int width = 1024; width >= f.window->minimumSizeHint().width(); width -= 10) {
        f.window->resize(width, 768);
        QCoreApplication::processEvents();
        QVERIFY2(isWhole(forms + QStringList(QString())), qPrintable(QString::number(width)));
    }
    f.window->resize(1600, 768);
    QCoreApplication::processEvents();
    QCOMPARE(hints->text(), all);
    // Letters of which all do not fit
    QFont large = hints->font();
    large.setPixelSize(100);
    hints->setFont(large);
    QCoreApplication::processEvents();
    QVERIFY(hints->text() != all);
    QVERIFY(isWhole(forms + QStringList(QString())));
}

void ViewerWindowTest::mnemonicsAreUnique_data()
{
    fitsASmallScreen_data();
}

void ViewerWindowTest::mnemonicsAreUnique()
{
    QFETCH(QLocale, locale);
    installInterfaceTranslations(locale);
    WindowFixture f;
    QStringList found;
    const auto add = [&found](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) {
            found.append(key.toString());
        }
    };
    for (const QAction *action : f.window->menuBar()->actions()) {
        add(action->text());
    }
    for (const QAbstractButton *button : f.window->findChildren<QAbstractButton *>()) {
        add(button->text());
    }
    for (const QTabWidget *tabs : f.window->findChildren<QTabWidget *>()) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            add(tabs->tabText(tab));
        }
    }
    QVERIFY(found.size() > 10);
    QStringList once = found;
    QVERIFY2(once.removeDuplicates() == 0, qPrintable(found.join(QLatin1Char(' '))));
    for (const QAction *action : f.window->menuBar()->actions()) {
        found.clear();
        for (const QAction *item : action->menu()->actions()) {
            add(item->text());
        }
        once = found;
        QVERIFY2(once.removeDuplicates() == 0, qPrintable(action->text() + found.join(QLatin1Char(' '))));
    }
}

void ViewerWindowTest::tolerancesAreChosenAndRemembered()
{
    WindowFixture f;
    TolerancesMenu *menu = f.window->tolerancesMenu();
    QVERIFY(!f.window->session()->tolerances());
    const QString file = f.settings.filePath(QStringLiteral("t.json"));
    const auto write = [&file](const QByteArray &text) {
        QFile t(file);
        return t.open(QIODevice::WriteOnly) && t.write(text) == text.size();
    };
    QVERIFY(write(R"({"version": 1, "name": "Stage", "whiteUv": 0.004})"));
    QVERIFY(menu->choose(file));
    QVERIFY(f.window->session()->tolerances());
    const auto checked = [menu] {
        QStringList texts;
        Q_EMIT menu->aboutToShow();
        for (const QAction *action : menu->actions()) {
            if (action->isChecked()) {
                texts << action->text();
            }
        }
        return texts;
    };
    QCOMPARE(checked(), QStringList(QStringLiteral("Stage")));
    {
        const ViewerWindow other;
        QVERIFY(other.session()->tolerances()->limits.whiteUv == 0.004);
    }
    QVERIFY(!f.window->warnings()->isVisible());
    QVERIFY(write(R"({"version": 1, "name": "Stage", "whiteUv": 0.001, "whiteUv": 0.004})"));
    QVERIFY(menu->choose(file));
    QVERIFY(f.window->warnings()->isVisible());
    QVERIFY2(f.window->warnings()->list()->toPlainText().startsWith(QLatin1String("t.json:1:51: ")),
        qPrintable(f.window->warnings()->list()->toPlainText()));
    // What cannot be read leaves what was chosen.
    QVERIFY(write("{}"));
    Answer answer(QMessageBox::Ok);
    QVERIFY(!menu->choose(file));
    QVERIFY(answer.text().contains(QLatin1String("version: missing")));
    QVERIFY(f.window->session()->tolerances());
    QVERIFY(menu->choose(QString()));
    QVERIFY(!f.window->session()->tolerances());
    QCOMPARE(checked(), QStringList(QStringLiteral("&None")));
    const ViewerWindow none;
    QVERIFY(!none.session()->tolerances());
}

void ViewerWindowTest::fitsASmallScreen_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("English") << QLocale(QLocale::English);
    QTest::newRow("Chinese") << QLocale(QLocale::Chinese);
}

void ViewerWindowTest::fitsASmallScreen()
{
    QFETCH(QLocale, locale);
    installInterfaceTranslations(locale);
    WindowFixture f;
    QCOMPARE(f.window->size(), QSize(1024, 768));
    auto *tables = f.window->panel()->findChild<QTabWidget *>();
    for (const GroupedTable *table : {f.window->panel()->values(), f.window->panel()->coverage()}) {
        tables->setCurrentIndex(table == f.window->panel()->values() ? 0 : 1);
        QCoreApplication::processEvents();
        QCOMPARE(table->horizontalScrollBar()->maximum(), 0);
    }
    for (int page = 0; page < f.window->pages()->count(); ++page) {
        f.window->pages()->setCurrentIndex(page);
        QCoreApplication::processEvents();
        QCOMPARE(f.window->size(), QSize(1024, 768));
        // No label or button is given less than its text needs.
        for (QWidget *widget : f.window->findChildren<QWidget *>()) {
            const bool hasText = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QAbstractSpinBox *>(widget);
            if (widget->isVisible() && hasText) {
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), widget->metaObject()->className());
                const QRect place(widget->mapTo(f.window.get(), QPoint()), widget->size());
                QVERIFY2(f.window->rect().contains(place), widget->metaObject()->className());
            }
        }
    }
}

void ViewerWindowTest::everyFieldHasAName()
{
    WindowFixture f;
    int fields = 0;
    for (QWidget *widget : f.window->findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy()) {
            continue;
        }
        ++fields;
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(interface && !interface->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
    }
    QVERIFY(fields > 30);
}

void ViewerWindowTest::everythingIsReachedByTab()
{
    WindowFixture f;
    QSet<QWidget *> reached;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : f.window.get(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    TargetEditor *editor = f.window->panel()->editor();
    QVERIFY(reached.contains(f.window->diagramPage()->view()));
    QVERIFY(reached.contains(f.window->diagramPage()->lens()->view()));
    QVERIFY(reached.contains(f.window->diagramPage()->key()));
    for (const Vertex vertex : allVertices) {
        QVERIFY(reached.contains(editor->firstCoordinate(vertex)));
        QVERIFY(reached.contains(editor->secondCoordinate(vertex)));
        QVERIFY(reached.contains(editor->luminance(vertex)));
    }
    QVERIFY(reached.contains(editor->temperature()));
    QVERIFY(reached.contains(editor->duv()));
    QVERIFY(reached.contains(editor->holdWhite()));
    QVERIFY(reached.contains(editor->snap()));
}

void ViewerWindowTest::speaksChinese()
{
    installInterfaceTranslations(QLocale(QLocale::Chinese, QLocale::China));
    WindowFixture f;
    QCOMPARE(f.window->pages()->tabText(1), QString::fromUtf8("比较(&C)"));
    QCOMPARE(f.window->windowTitle(), QString::fromUtf8("LED wall[*] – 色域查看器"));
    f.change();
    const auto says = [&](const char *text) {
        const QList<QLabel *> labels = f.window->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [&](const QLabel *label) { return label->text() == QString::fromUtf8(text); });
    };
    QVERIFY(says("DCI-P3(D65)（已修改）"));
    QVERIFY(f.window->diagramPage()->key()->entry(QString::fromUtf8("公共区域")));
    // What is saved does not depend on the language.
    QCOMPARE(f.document().description().target, QStringLiteral("DCI-P3(D65) (edited)"));
}

QTEST_MAIN(ViewerWindowTest)
#include "viewerwindowtest.moc"
