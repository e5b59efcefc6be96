// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/source_methods.h"

#include "terminal/session/session.h"
#include "terminal/sources/source_values.h"

#include <QJsonArray>

#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

RpcError refused(const Error& error) {
    return {RpcCode::Refused, sentence(error)};
}

SourceDesk::Finished answered(const Reply& reply) {
    return [reply](const Done& done) { reply(done ? Answer() : Answer(refused(done.error()))); };
}

// A parameter was wrong, which is the answer.
bool isWrong(const Params& params, const Reply& reply) {
    if (params.error())
        reply(*params.error());
    return params.error().has_value();
}

struct Defined {
    NetworkSource source;
    SourceSecret secret;
};

// What the parameters define; none: what is wrong with them is the answer. Who names an address here has
// typed it.
std::optional<Defined> defined(Params& params, const Reply& reply) {
    const SplitAddress split = withoutSecrets(QUrl(params.text(u"address"_s), QUrl::StrictMode));
    if (isWrong(params, reply))
        return std::nullopt;
    QJsonObject definition = params.all();
    definition.remove(u"name"_s);
    QJsonObject typed = typedDefinition(split);
    if (definition.contains("service"_L1))
        typed.remove(u"service"_s);
    for (auto field = typed.begin(); field != typed.end(); ++field)
        definition.insert(field.key(), field.value());
    const auto source = networkSource(definition);
    if (source)
        return Defined{source.value(), split.secret};
    reply(RpcError{RpcCode::BadParameters, sentence(source.error())});
    return std::nullopt;
}

}  // namespace

void SourceMethods::addTo(MethodTable& table) {
    table.addDeferred(u"source.list"_s, [this](Params&, const Reply& reply) { list(reply); });
    table.addDeferred(u"source.add"_s, [this](Params& params, const Reply& reply) { add(params, reply); });
    table.addDeferred(u"source.pause"_s,
                      [this](Params& params, const Reply& reply) { pause(params, reply); });
    table.addDeferred(u"source.remove"_s,
                      [this](Params& params, const Reply& reply) { remove(params, reply); });
    table.addDeferred(u"source.move"_s, [this](Params& params, const Reply& reply) { move(params, reply); });
    table.addDeferred(u"source.test"_s, [this](Params& params, const Reply& reply) { test(params, reply); });
}

void SourceMethods::list(const Reply& reply) {
    SourceDesk& desk = session.sources().desk();
    desk.read([&desk, reply](const Done& done) {
        QJsonArray sources;
        for (const ListedSource& listed : desk.sources())
            sources.append(valueOf(listed));
        reply(done ? Answer(sources) : Answer(refused(done.error())));
    });
}

void SourceMethods::add(Params& params, const Reply& reply) {
    const auto asked = defined(params, reply);
    if (!asked)
        return;
    session.sources().desk().add(asked->source, asked->secret, [reply](const Result<QString>& added) {
        reply(added ? Answer(QJsonObject{{u"name"_s, added.value()}}) : Answer(refused(added.error())));
    });
}

void SourceMethods::pause(Params& params, const Reply& reply) {
    const QString name = params.text(u"name"_s);
    const bool isPaused = params.boolean(u"on"_s);
    if (!isWrong(params, reply))
        session.sources().desk().pause(name, isPaused, answered(reply));
}

void SourceMethods::remove(Params& params, const Reply& reply) {
    const QString name = params.text(u"name"_s);
    if (!isWrong(params, reply))
        session.sources().desk().remove(name, answered(reply));
}

void SourceMethods::move(Params& params, const Reply& reply) {
    const QString name = params.text(u"name"_s);
    const auto place = static_cast<int>(params.number(u"place"_s, 0));
    if (!isWrong(params, reply))
        session.sources().desk().move(name, place, answered(reply));
}

void SourceMethods::test(Params& params, const Reply& reply) {
    const auto asked = defined(params, reply);
    if (!asked)
        return;
    session.sources().trial().start(asked->source, asked->secret,
                                    [reply](const TrialReport& report) { reply(valueOf(report)); });
}

}  // namespace wirepane
