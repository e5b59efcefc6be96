// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <array>

class MyRichEdit;
class QWidget;
class SButton;
class SEdit;

// The story of a headline in a window of its own, modeless. Created hidden; its owner shows it, hides it and
// deletes it. Closing it gives the keyboard back to the owner.
class TRVNewsStory : public QDialog {
    Q_OBJECT

public:
    // `ownerView` is the news view that the dialog belongs to; it outlives the dialog.
    explicit TRVNewsStory(QWidget* ownerView);

    // Sets every text of the dialog in the language in force.
    void vLoadLanguageString();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void vPlaceButtons();

    QWidget* owner;
    SEdit* titleEdit;
    MyRichEdit* storyEdit;
    std::array<SButton*, 4> buttons{};  // from the right: previous, next, save as, print
};
