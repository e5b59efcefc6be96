// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/news_diary.h"

namespace wirepane {

namespace {
NewsDiary* installedDiary = nullptr;
}

NewsDiary::~NewsDiary() {
    if (installedDiary == this)
        installedDiary = nullptr;
}

void NewsDiary::install(NewsDiary* diary) {
    installedDiary = diary;
}

void NewsDiary::tell(const QObject& view, const NewsAct& act) {
    if (installedDiary != nullptr)
        installedDiary->note(view, act);
}

}  // namespace wirepane
