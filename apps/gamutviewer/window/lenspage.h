// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LENSPAGE_H
#define GAMUTVIEWER_LENSPAGE_H

#include "window/page.h"

namespace gamutviewer {

class LensWidget;

/*! \brief A close look at the white points. */
class LensPage : public Page {
    Q_OBJECT

public:
    explicit LensPage(Document *document, QWidget *parent = nullptr);

    LensWidget *lens() const { return m_lens; }

protected:
    void refresh() override;

private:
    LensWidget *m_lens;
};

} // namespace gamutviewer

#endif
