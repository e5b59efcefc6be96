// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QPixmap>
#include <QPushButton>

// A button that is nothing but a picture, another one for each of its states.
class WIREPANE_HOST_EXPORT CHoverButton : public QPushButton {
    Q_OBJECT

public:
    explicit CHoverButton(QWidget* parent = nullptr);

    // The pictures of the button as it lies there, pressed, under the mouse or with the keyboard, and out of
    // use.
    void loadBitmaps(const QPixmap& normal, const QPixmap& selected, const QPixmap& focused,
                     const QPixmap& disabled);
    // Takes the size of the normal picture.
    void sizeToContent();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QPixmap& picture() const;

    QPixmap normal;
    QPixmap selected;
    QPixmap focused;
    QPixmap disabled;
};
