// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

// A read-only text of several lines. Text is never taken as markup, and is copied as plain text. Colours that
// were not set (invalid) follow the palette. What is selected stays visible while another window has the
// keyboard.
class MyRichEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit MyRichEdit(QWidget* parent = nullptr);

    // "\r\n" and "\n" break the line. The view goes to the top, nothing is selected.
    void vSetText(const QString& text);
    // The text exactly as it was set.
    const QString& szGetText() const { return shown; }

    void vSetTextColor(const QColor& colour);
    void vSetBkColor(const QColor& colour);

protected:
    void changeEvent(QEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    void applyColours();

    QString shown;
    QColor textColour;
    QColor background;
};
