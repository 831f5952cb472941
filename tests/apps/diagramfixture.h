// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_DIAGRAMFIXTURE_H
#define TESTS_APPS_DIAGRAMFIXTURE_H

#include "windowfixture.h"

#include "panel/layerkey.h"

/*! \brief The page of the diagram in a window. */
namespace diagramfixture {

using namespace gamutviewer;
using ceiechart::DiagramContent;
using ceiechart::DiagramGamut;
using ceiechart::DiagramLayer;
using ceiechart::DiagramView;
using ceiechart::GamutRole;

inline DocumentView *view(const WindowFixture &f)
{
    return f.window->diagramPage()->view();
}

inline LayerKey *key(const WindowFixture &f)
{
    return f.window->diagramPage()->key();
}

} // namespace diagramfixture

#endif
