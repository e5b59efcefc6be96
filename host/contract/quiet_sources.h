// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <vector>

namespace wirepane {

// A source from which nothing comes though something should.
struct QuietSource {
    QString name;            // as its reader calls it
    bool answers = false;    // it is there, but has had nothing new for much longer than is usual
    std::int64_t since = 0;  // of its last news, or of its silence; seconds since 1970

    bool operator==(const QuietSource&) const = default;
};

// Tells that others are quiet now, or none.
class WIREPANE_CONTRACT_EXPORT QuietTeller : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~QuietTeller() override;

Q_SIGNALS:
    void changed();
};

// Optional for back ends, beside BKQuoteInterface: which sources a reader must not take for sources without
// news. Interface thread.
class WIREPANE_CONTRACT_EXPORT QuietSources {
public:
    virtual ~QuietSources();

    // Those that give no sign of life; those that only have nothing new where that holds for all.
    virtual std::vector<QuietSource> quietSources() const = 0;
    // Lives as long as this.
    virtual QuietTeller& quietTeller() = 0;
};

}  // namespace wirepane
