// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/import/reading.h"
#include "backend/network/address_secrets.h"
#include "backend/network/http_fetch.h"
#include "backend/network/network_source.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace wirepane {

struct SourceQuestion {
    NetworkSource source;
    SourceSecret secret;
    Validators known;  // of what was read before; empty: all is asked for
};

// What a source has said, its news as it is to be taken: with service, category and canonical link by the
// source's definition, without what is older than it takes.
struct SourceAnswer {
    std::optional<Error> fault;  // why nothing could be read, or what is strange in what was
    bool isAlive = false;        // the other end has answered, whatever it said
    bool isRead = false;         // the answer counts; also where it says that nothing has changed
    bool isUnchanged = false;
    bool isOpen = false;               // of a stream: it stands, and says more by itself
    std::vector<SourceItem> items;     // also those that cannot be taken, each with its reason
    int left = 0;                      // news that was too old
    Validators validators;             // none where the answer was not sound as a whole
    std::optional<std::int64_t> wish;  // seconds: not to ask again before
    int milliseconds = 0;
    std::shared_ptr<void> room;  // of a stream: held until the items have been taken
};

// A stream that is followed, until this goes; what was on its way then may still be told.
class SourceStream {
public:
    SourceStream() = default;
    SourceStream(const SourceStream&) = delete;
    SourceStream& operator=(const SourceStream&) = delete;
    virtual ~SourceStream() = default;
};

// Asks sources. Interface thread.
class SourceAsker {
public:
    using Answered = std::function<void(SourceAnswer)>;

    SourceAsker() = default;
    SourceAsker(const SourceAsker&) = delete;
    SourceAsker& operator=(const SourceAsker&) = delete;
    virtual ~SourceAsker() = default;

    // Calls back once, from the event loop; not any more when the asker is gone. Who asks makes sure that the
    // callback can be made for as long.
    virtual void ask(const SourceQuestion& question, const Answered& answered) = 0;
    // Follows a source that is a stream: calls back when it stands, with all that comes and at signs of life,
    // each time with `isOpen`, and once without it when it has ended or could not be opened.
    virtual std::unique_ptr<SourceStream> follow(const SourceQuestion& question,
                                                 const Answered& answered) = 0;
};

// Over http and https, or from a file. What is asked, decoded and read is so on threads of its own.
class NetworkAsker : public SourceAsker {
public:
    explicit NetworkAsker(const HttpLimits& limits = {});
    ~NetworkAsker() override;

    // Of what is no stream.
    void ask(const SourceQuestion& question, const Answered& answered) override;
    std::unique_ptr<SourceStream> follow(const SourceQuestion& question, const Answered& answered) override;

private:
    class Threads;
    class Following;
    std::shared_ptr<Threads> threads;
};

}  // namespace wirepane
