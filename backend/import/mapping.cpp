// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapping.h"

#include "backend/import/import_errors.h"
#include "backend/import/json_fault.h"
#include "backend/import/text_encoding.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = qint64(1) << 20;

// The fields of one object of the file; all of them share the first fault.
class MappingFields {
public:
    MappingFields(const QJsonObject& object, QString place, std::optional<Error>& firstFault)
        : fields(object), where(std::move(place)), fault(firstFault) {}

    QString text(QLatin1StringView name) { return checked(fields.optionalText(name)).value_or(QString()); }

    // A text, or a list of texts.
    QStringList texts(QLatin1StringView name) {
        const QJsonValue value = fields.value(name);
        if (!fields.has(name))
            return {};
        QStringList found;
        for (const auto& entry : value.isArray() ? value.toArray() : QJsonArray{value}) {
            if (!entry.isString() || entry.toString().trimmed().isEmpty())
                complain(name, makeError<import_errors::mustBeTexts>());
            found += entry.toString().trimmed();
        }
        return found;
    }

    int number(QLatin1StringView name, int least, int most, int otherwise) {
        return static_cast<int>(checked(fields.optionalNumber(name, least, most)).value_or(otherwise));
    }

    bool has(QLatin1StringView name) const { return fields.has(name); }
    QJsonValue value(QLatin1StringView name) { return fields.value(name); }

    MappingFields inner(QLatin1StringView name) {
        return {checked(fields.optionalObject(name)).value_or(QJsonObject()), where + name + u'.', fault};
    }

    QMap<QString, QString> names(QLatin1StringView name) {
        const QJsonObject entries = checked(fields.optionalObject(name)).value_or(QJsonObject());
        QMap<QString, QString> found;
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            if (!entry.value().isString() && !entry.value().isDouble())
                complain(name, makeError<import_errors::mustHoldTexts>());
            found.insert(entry.key(), entry.value().toVariant().toString());
        }
        return found;
    }

    void complain(const QString& name, Error problem) {
        if (!fault)
            fault = makeError<import_errors::mappingField>(where + name, std::move(problem));
    }
    void complainOfForm(QLatin1StringView name, const Error& problem) {
        if (!fault)
            fault = makeError<import_errors::mappingFieldUnusable>(where + name, problem);
    }

    // A name that nobody asked for is a slip of the pen.
    void finish() {
        const QStringList unknown = fields.unknown();
        if (!unknown.isEmpty() && !fault)
            fault = makeError<import_errors::mappingFieldUnknown>(where + unknown.first());
    }

private:
    // What was read, after a fault that it may have has been kept.
    template <class Value>
    Value checked(Value read) {
        if (const auto& wrong = fields.fault())
            complain(wrong->field, jsonFault(*wrong));
        return read;
    }

    JsonFields fields;
    QString where;
    std::optional<Error>& fault;
};

std::optional<TimeForm> readForm(MappingFields& fields, QLatin1StringView name) {
    const QString form = fields.text(name);
    if (form.isEmpty())
        return std::nullopt;
    const Result<TimeForm> parsed = TimeForm::parse(form);
    if (!parsed) {
        fields.complainOfForm(name, parsed.error());
        return std::nullopt;
    }
    return parsed.value();
}

// "+08:00" or "Asia/Taipei".
QTimeZone readZone(MappingFields& fields) {
    const QString name = fields.text("zone"_L1);
    if (name.isEmpty())
        return QTimeZone::utc();
    const bool isOffset = name.startsWith(u'+') || name.startsWith(u'-');
    const QByteArray id = (isOffset ? u"UTC"_s + name : name).toLatin1();
    if (!QTimeZone::isTimeZoneIdAvailable(id))
        fields.complain("zone"_L1, makeError<import_errors::noZone>());
    return QTimeZone(id);
}

MappedTime readTime(MappingFields fields) {
    MappedTime time;
    time.dateColumns = fields.texts("date"_L1);
    time.dateForm = readForm(fields, "date_form"_L1);
    time.clockColumn = fields.text("clock"_L1).trimmed();
    time.clockForm = readForm(fields, "clock_form"_L1);
    time.yearsFrom = fields.number("years_from"_L1, -10000, 10000, 0);
    time.zone = readZone(fields);
    if (time.dateColumns.isEmpty())
        fields.complain("date"_L1, makeError<import_errors::mustNameColumn>());
    if (time.clockColumn.isEmpty() == time.clockForm.has_value())
        fields.complain("clock_form"_L1, makeError<import_errors::withClock>());
    fields.finish();
    return time;
}

MappedValue readValue(MappingFields fields) {
    MappedValue value;
    value.columns = fields.texts("columns"_L1);
    value.names = fields.names("names"_L1);
    value.otherwise = fields.text("otherwise"_L1);
    fields.finish();
    return value;
}

bool isService(const QString& text) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= 1 && number <= 255;
}

// A number, or an object as for any value.
MappedValue readService(MappingFields& fields) {
    MappedValue service;
    if (fields.value("service"_L1).isObject())
        service = readValue(fields.inner("service"_L1));
    else if (const int number = fields.number("service"_L1, 1, 255, 0); number > 0)
        service.otherwise = QString::number(number);
    const bool known = std::all_of(service.names.begin(), service.names.end(), isService);
    if (!known || !(service.otherwise.isEmpty() || isService(service.otherwise)))
        fields.complain("service"_L1, makeError<import_errors::mustNameServices>());
    return service;
}

MappedSymbols readSymbols(MappingFields fields) {
    MappedSymbols symbols;
    symbols.columns = fields.texts("columns"_L1);
    symbols.separator = fields.text("separator"_L1);
    symbols.market = static_cast<unsigned char>(fields.number("market"_L1, 0, 255, 0));
    fields.finish();
    return symbols;
}

MappedLines readLines(MappingFields& fields) {
    const QString name = fields.text("lines"_L1);
    if (name == "kept"_L1)
        return MappedLines::Kept;
    if (name == "numbered"_L1)
        return MappedLines::Numbered;
    if (!name.isEmpty() && name != "wrapped"_L1)
        fields.complain("lines"_L1, makeError<import_errors::mustBeLines>());
    return MappedLines::Wrapped;
}

QChar readSeparator(MappingFields& fields) {
    const QString separator = fields.has("separator"_L1) ? fields.text("separator"_L1) : u","_s;
    if (separator.size() == 1 && separator != u"\"" && separator != u"\n" && separator != u"\r")
        return separator.front();
    fields.complain("separator"_L1, makeError<import_errors::mustBeCharacter>());
    return u',';
}

QStringList readEncodings(MappingFields& fields) {
    const QStringList names = fields.texts("encodings"_L1);
    for (const QString& name : names) {
        if (!decoderOf(name.toLatin1()).isValid())
            fields.complain("encodings"_L1, makeError<import_errors::namesEncoding>(name));
    }
    return names;
}

Mapping readMapping(MappingFields& fields) {
    Mapping mapping;
    mapping.encodings = readEncodings(fields);
    mapping.separator = readSeparator(fields);
    mapping.service = readService(fields);
    mapping.identityPrefix = fields.text("identity_prefix"_L1);
    mapping.identity = fields.texts("identity"_L1);
    mapping.title = fields.texts("title"_L1);
    mapping.story = fields.texts("story"_L1);
    mapping.lines = readLines(fields);
    mapping.time = readTime(fields.inner("time"_L1));
    mapping.category = readValue(fields.inner("category"_L1));
    mapping.symbols = readSymbols(fields.inner("symbols"_L1));
    if (mapping.identity.isEmpty())
        fields.complain("identity"_L1, makeError<import_errors::mustNameIdentity>());
    if (mapping.title.isEmpty() && mapping.story.isEmpty())
        fields.complain("title"_L1, makeError<import_errors::mustNameTitle>());
    fields.finish();
    return mapping;
}

}  // namespace

Result<Mapping> Mapping::parse(const QByteArray& file) {
    QJsonParseError problem;
    const auto document = QJsonDocument::fromJson(file, &problem);
    if (problem.error != QJsonParseError::NoError)
        return makeError<import_errors::mappingNoJson>(jsonFault(problem), problem.offset);
    if (!document.isObject())
        return makeError<import_errors::mappingNoObject>();
    std::optional<Error> fault;
    MappingFields fields(document.object(), {}, fault);
    Mapping mapping = readMapping(fields);
    if (fault)
        return *fault;
    return mapping;
}

Result<Mapping> Mapping::load(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return makeError<import_errors::mappingNotOpened>(path, file.errorString());
    if (file.size() > largestFile)
        return makeError<import_errors::mappingTooLarge>(path, largestFile);
    return parse(file.readAll());
}

QStringList Mapping::neededColumns() const {
    QStringList needed = identity + time.dateColumns.first(1);
    if (!title.isEmpty())
        needed += title.first();
    return needed;
}

unsigned char fixedServiceOf(const Mapping& mapping) {
    return mapping.service.columns.isEmpty() ? static_cast<unsigned char>(mapping.service.otherwise.toUInt())
                                             : 0;
}

}  // namespace wirepane
