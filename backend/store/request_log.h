// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantList>

#include <cstddef>
#include <deque>
#include <vector>

namespace wirepane {

// What a view asked of the back end, for scripts to look at.
struct Request {
    QString operation;  // the contract's name
    QVariantList arguments;
};

// The newest requests, oldest first; the oldest give way.
class RequestLog {
public:
    explicit RequestLog(std::size_t mostRequests = 10'000) : most(mostRequests) {}

    void add(const QString& operation, const QVariantList& arguments) {
        if (requests.size() == most)
            requests.pop_front();
        requests.push_back({operation, arguments});
    }
    // Hands over what was asked since the last call.
    std::vector<Request> take() {
        std::vector<Request> taken(requests.begin(), requests.end());
        requests.clear();
        return taken;
    }

private:
    std::size_t most;
    std::deque<Request> requests;
};

}  // namespace wirepane
