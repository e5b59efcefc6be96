// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace wirepane {

// The area of the main frame that holds the views, one over the other. A view either fills it or has a size
// of its own at its top left corner.
class ViewDesk : public QWidget {
    Q_OBJECT

public:
    explicit ViewDesk(QWidget* parent = nullptr);

    // Gives the view, a child of the desk, its size (an invalid one: it fills the desk) and puts it on top.
    void place(QWidget* view, const QSize& size);

    // What an empty desk says.
    void setHint(const QString& text);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QList<QWidget*> filling() const;

    QString hint;
};

}  // namespace wirepane
