// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/ninjs_fields.h"

#include "backend/import/import_errors.h"
#include "backend/import/json_fault.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <optional>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array textFields{
    QLatin1StringView("uri"),
    QLatin1StringView("type"),
    QLatin1StringView("mimetype"),
    QLatin1StringView("representationtype"),
    QLatin1StringView("profile"),
    QLatin1StringView("version"),
    QLatin1StringView("firstcreated"),
    QLatin1StringView("versioncreated"),
    QLatin1StringView("contentcreated"),
    QLatin1StringView("embargoed"),
    QLatin1StringView("embargoeduntil"),
    QLatin1StringView("expires"),
    QLatin1StringView("pubstatus"),
    QLatin1StringView("copyrightholder"),
    QLatin1StringView("copyrightnotice"),
    QLatin1StringView("usageterms"),
    QLatin1StringView("ednote"),
    QLatin1StringView("language"),
    QLatin1StringView("title"),
    QLatin1StringView("by"),
    QLatin1StringView("byline"),
    QLatin1StringView("headline"),
    QLatin1StringView("slugline"),
    QLatin1StringView("located"),
};

constexpr std::array textFamilies{QLatin1StringView("body_"), QLatin1StringView("description_"),
                                  QLatin1StringView("headline_")};

// Fields that JSON of other kinds does not have, as it has "type" or "title".
constexpr std::array tellingFields{
    QLatin1StringView("uri"),
    QLatin1StringView("firstcreated"),
    QLatin1StringView("versioncreated"),
    QLatin1StringView("contentcreated"),
    QLatin1StringView("pubstatus"),
    QLatin1StringView("headline"),
    QLatin1StringView("headlines"),
    QLatin1StringView("slugline"),
    QLatin1StringView("bodies"),
};

// A list and the texts that its entries hold.
struct ListField {
    QLatin1StringView singular;
    QLatin1StringView plural;
    std::array<QLatin1StringView, 3> texts;
};

constexpr std::array listFields{
    ListField{QLatin1StringView("subject"), QLatin1StringView("subjects"), {QLatin1StringView("name")}},
    ListField{
        QLatin1StringView("organisation"), QLatin1StringView("organisations"), {QLatin1StringView("name")}},
    ListField{QLatin1StringView("symbols"),
              QLatin1StringView("symbols"),
              {QLatin1StringView("ticker"), QLatin1StringView("exchange")}},
    ListField{QLatin1StringView("headlines"),
              QLatin1StringView("headlines"),
              {QLatin1StringView("value"), QLatin1StringView("role"), QLatin1StringView("contenttype")}},
    ListField{QLatin1StringView("bodies"),
              QLatin1StringView("bodies"),
              {QLatin1StringView("value"), QLatin1StringView("role"), QLatin1StringView("contenttype")}},
    ListField{QLatin1StringView("descriptions"),
              QLatin1StringView("descriptions"),
              {QLatin1StringView("value"), QLatin1StringView("role"), QLatin1StringView("contenttype")}},
};

Error nameOfType(const QJsonValue& value) {
    switch (value.type()) {
        case QJsonValue::Bool:
            return makeError<import_errors::trueOrFalse>();
        case QJsonValue::Double:
            return makeError<import_errors::aNumber>();
        case QJsonValue::String:
            return makeError<import_errors::aText>();
        case QJsonValue::Array:
            return makeError<import_errors::aList>();
        case QJsonValue::Object:
            return makeError<import_errors::anObject>();
        default:
            return makeError<import_errors::nothing>();
    }
}

// What is wrong with a field of a record; nothing when it is as it must be.
using Fault = std::optional<Error>;

Fault wrongType(const QString& field, Error wanted, const QJsonValue& value) {
    return makeError<import_errors::recordField>(field, std::move(wanted), nameOfType(value));
}

bool isText(const QJsonValue& value) {
    return value.isString() || value.isNull();
}

const ListField* listField(const QString& name) {
    const auto* found = std::find_if(listFields.begin(), listFields.end(), [&](const ListField& field) {
        return name == field.singular || name == field.plural;
    });
    return found == listFields.end() ? nullptr : found;
}

Fault faultOfList(const ListField& field, const QString& name, const QJsonValue& list);

Fault faultOfEntry(const ListField& field, const QString& place, const QJsonValue& entry) {
    if (!entry.isObject())
        return wrongType(place, makeError<import_errors::anObject>(), entry);
    const QJsonObject object = entry.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString name = member.key().toLower();
        const QString memberPlace = place + u'.' + member.key();
        const auto& texts = field.texts;
        if (std::find(texts.begin(), texts.end(), name) != texts.end() && !isText(member.value()))
            return wrongType(memberPlace, makeError<import_errors::aText>(), member.value());
        if (name == "symbols"_L1) {
            if (const Fault fault = faultOfList(*listField(name), memberPlace, member.value()))
                return fault;
        }
    }
    return std::nullopt;
}

Fault faultOfList(const ListField& field, const QString& name, const QJsonValue& list) {
    if (list.isNull())
        return std::nullopt;
    if (!list.isArray())
        return wrongType(name, makeError<import_errors::aList>(), list);
    const QJsonArray entries = list.toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (const Fault fault = faultOfEntry(field, u"%1[%2]"_s.arg(name).arg(i), entries.at(i)))
            return fault;
    }
    return std::nullopt;
}

bool isOfTextFamily(const QString& name) {
    return std::any_of(textFamilies.begin(), textFamilies.end(),
                       [&](QLatin1StringView family) { return name.startsWith(family); });
}

Fault faultOfField(const QString& name, const QJsonValue& value) {
    const QString lower = name.toLower();
    const bool mustBeText =
        std::find(textFields.begin(), textFields.end(), lower) != textFields.end() || isOfTextFamily(lower);
    if (mustBeText && !isText(value))
        return wrongType(name, makeError<import_errors::aText>(), value);
    const ListField* list = listField(lower);
    return list != nullptr ? faultOfList(*list, name, value) : std::nullopt;
}

Result<QJsonObject> jsonObject(QByteArrayView record) {
    const QByteArrayView text = record.trimmed();
    if (!text.startsWith('{'))
        return makeError<import_errors::recordNoObject>();
    QJsonParseError problem;
    const auto document =
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), text.size()), &problem);
    if (problem.error != QJsonParseError::NoError)
        return makeError<import_errors::recordNoJson>(jsonFault(problem), problem.offset);
    return document.object();
}

}  // namespace

bool hasNinjsField(const QJsonObject& object) {
    const QStringList names = object.keys();
    return std::any_of(names.begin(), names.end(), [](const QString& name) {
        const QString lower = name.toLower();
        return std::find(tellingFields.begin(), tellingFields.end(), lower) != tellingFields.end() ||
               isOfTextFamily(lower);
    });
}

NinjsFields::NinjsFields(const QJsonObject& object) {
    for (auto field = object.begin(); field != object.end(); ++field)
        fields.insert(field.key().toLower(), field.value());
}

Result<NinjsFields> NinjsFields::read(QByteArrayView record) {
    const Result<QJsonObject> object = jsonObject(record);
    if (!object)
        return object.error();
    const QJsonObject& content = object.value();
    for (auto field = content.begin(); field != content.end(); ++field) {
        if (const Fault fault = faultOfField(field.key(), field.value()))
            return *fault;
    }
    return NinjsFields(content);
}

QString NinjsFields::text(QLatin1StringView name) const {
    return fields.value(name).toString();
}

bool NinjsFields::flag(QLatin1StringView name) const {
    return fields.value(name).toBool();
}

std::vector<NinjsFields> NinjsFields::list(QLatin1StringView name) const {
    const ListField* field = listField(name);
    std::vector<NinjsFields> entries;
    for (const QLatin1StringView key : {field->singular, field->plural}) {
        if (!entries.empty())
            break;
        for (const auto& entry : fields.value(key).toArray())
            entries.push_back(NinjsFields(entry.toObject()));
    }
    return entries;
}

std::vector<NinjsFields::Value> NinjsFields::family(QLatin1StringView name) const {
    std::vector<Value> values;
    const auto add = [&values](const Value& value) {
        if (!value.text.trimmed().isEmpty())
            values.push_back(value);
    };
    const QString prefix = name + u'_';
    for (auto field = fields.lowerBound(prefix); field != fields.end() && field.key().startsWith(prefix);
         ++field)
        add({field->toString(), field.key().sliced(prefix.size()), {}});
    const QString plural = name == "body"_L1 ? u"bodies"_s : name + u's';
    for (const auto& entry : fields.value(plural).toArray()) {
        const NinjsFields value(entry.toObject());
        add({value.text("value"_L1), value.text("role"_L1), value.text("contenttype"_L1)});
    }
    return values;
}

}  // namespace wirepane
