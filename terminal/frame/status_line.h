// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <optional>

class QLabel;
class QPushButton;

namespace wirepane {

// What the status bar says.
struct FrameStatus {
    QString feed;     // how the terminal stands to its sources of news
    QString feedTip;  // how its sources stand, in lines
    bool isLive = true;
    bool isInvented = false;        // the news is that of the sample wire
    bool hasNoSource = false;       // the user is offered to add one
    std::int64_t lastHeadline = 0;  // its time; 0: there is none
    std::int64_t now = 0;
    QString storeFile;
    int services = -1;  // that are ticked, of those that there are; -1: the list on show has its own
    int allServices = 0;
    int headlines = -1;              // of the list on show; -1: there is none
    QString unread;                  // of them, a number; empty: none, or nobody marks what is read
    int alerts = 0;                  // that were told and not seen
    QString asOf;                    // empty: the present moment is the machine's
    QDate newDay;                    // that has begun a while ago
    QDate shownDay;                  // of the list on show, where it is not the present day
    std::int64_t searchBacklog = 0;  // headlines that searches do not find yet
    std::optional<int> searchRenewal =
        {};  // how much of the new index is made (in a hundred), while there is one
};

// The contents of the status bar: what one reads at its left, what one can do about it, and at its right the
// counts and the clock.
class StatusLine : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void show(const FrameStatus& status);
    // Takes the size that goes with the application's.
    void fitFont();

signals:
    void importAsked();
    void connectAsked();
    void presentAsked();
    void todayAsked();
    void alertsAsked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void giveRoom();
    QLabel* addLabel();

    QLabel* feed;
    QLabel* actions;
    QLabel* last;
    QLabel* asOf;
    QPushButton* present;
    QLabel* day;
    QLabel* index;
    QLabel* headlines;
    QLabel* services;
    QLabel* servicesIcon;  // at its left
    QPushButton* alerts;
    QLabel* clock;
};

}  // namespace wirepane
