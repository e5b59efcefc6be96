// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/commands/diary_export.h"

#include "backend/diary/diary_errors.h"
#include "backend/diary/diary_lines.h"
#include "backend/diary/diary_screens.h"
#include "host/contract/news_rows.h"
#include "host/contract/whole_file.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFontMetrics>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

namespace names = diary_names;

QString momentText(std::int64_t milliseconds) {
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
}

QString secondText(const QJsonValue& seconds) {
    return seconds.isDouble() ? momentText(seconds.toInteger() * 1000) : QString();
}

// What is particular to the kind of entry.
QString factsOf(QJsonObject entry) {
    for (const QLatin1StringView common :
         {names::number, names::moment, names::kind, names::user, names::machine, names::session, names::view,
          names::service, names::time, names::sequence, names::received})
        entry.remove(common);
    return QString::fromUtf8(QJsonDocument(entry).toJson(QJsonDocument::Compact));
}

QStringList fieldsOf(const QJsonObject& entry) {
    const auto number = [&entry](QLatin1StringView name) {
        const QJsonValue value = entry.value(name);
        return value.isDouble() ? QString::number(value.toInteger()) : QString();
    };
    return {number(names::number),
            momentText(entry.value(names::moment).toInteger()),
            entry.value(names::user).toString(),
            entry.value(names::machine).toString(),
            entry.value(names::session).toString(),
            entry.value(names::kind).toString(),
            number(names::view),
            number(names::service),
            number(names::sequence),
            secondText(entry.value(names::time)),
            secondText(entry.value(names::received)),
            factsOf(entry)};
}

const QStringList headings{u"number"_s, u"screen"_s,  u"user"_s,     u"machine"_s, u"session"_s, u"kind"_s,
                           u"view"_s,   u"service"_s, u"sequence"_s, u"source"_s,  u"receipt"_s, u"facts"_s};

QString sealText(const DiaryHead& head) {
    return u"%1 entries, seal %2"_s.arg(head.count).arg(QLatin1StringView(head.seal));
}

// What a file is made of, entry by entry.
class Sheet {
public:
    Sheet() = default;
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;
    virtual ~Sheet() = default;

    virtual void add(const QJsonObject& entry) = 0;
    virtual QByteArray end(const DiaryHead& head) = 0;
};

class CsvSheet final : public Sheet {
public:
    void add(const QJsonObject& entry) override { bytes += csvLineOf(fieldsOf(entry)); }
    QByteArray end(const DiaryHead& head) override {
        QStringList last(headings.size());
        last[5] = u"head"_s;
        last.back() = sealText(head);
        return bytes + csvLineOf(last);
    }

private:
    QByteArray bytes = csvLineOf(headings);
};

class JsonSheet final : public Sheet {
public:
    void add(const QJsonObject& entry) override { entries.append(entry); }
    QByteArray end(const DiaryHead& head) override {
        const QJsonObject whole{{u"entries"_s, entries},
                                {u"head"_s, QJsonObject{{u"entries"_s, static_cast<qint64>(head.count)},
                                                        {u"seal"_s, QString::fromLatin1(head.seal)}}}};
        return QJsonDocument(whole).toJson();
    }

private:
    QJsonArray entries;
};

// Lines down the page, its number at the foot.
class PdfSheet final : public Sheet {
public:
    PdfSheet() {
        buffer.open(QIODevice::WriteOnly);
        writer = std::make_unique<QPdfWriter>(&buffer);
        writer->setPageSize(QPageSize(QPageSize::A4));
        writer->setPageMargins({15, 15, 15, 15}, QPageLayout::Millimeter);
        painter.begin(writer.get());
        QFont font;
        font.setPointSize(8);
        painter.setFont(font);
        lineHeight = painter.fontMetrics().lineSpacing();
        numberPage();
    }
    void add(const QJsonObject& entry) override {
        QStringList fields = fieldsOf(entry);
        fields.removeAll(QString());
        write(fields.join(u"  "_s));
    }
    QByteArray end(const DiaryHead& head) override {
        write(sealText(head));
        painter.end();
        writer.reset();
        return buffer.buffer();
    }

private:
    void write(const QString& text) {
        QTextLayout layout(text, painter.font(), writer.get());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        std::vector<QTextLine> lines;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(writer->width());
            lines.push_back(line);
        }
        layout.endLayout();
        for (const QTextLine& line : lines) {
            if (top + lineHeight > writer->height() - 2 * lineHeight) {
                writer->newPage();
                numberPage();
            }
            line.draw(&painter, QPointF(0, top) - line.position());
            top += lineHeight;
        }
        top += lineHeight / 2;
    }
    void numberPage() {
        painter.drawText(0, writer->height() - lineHeight / 2, QString::number(++page));
        top = 0;
    }

    QBuffer buffer;
    std::unique_ptr<QPdfWriter> writer;
    QPainter painter;
    int lineHeight = 0;
    int top = 0;
    int page = 0;
};

std::unique_ptr<Sheet> sheetFor(const QString& file) {
    if (file.endsWith(".csv"_L1, Qt::CaseInsensitive))
        return std::make_unique<CsvSheet>();
    if (file.endsWith(".json"_L1, Qt::CaseInsensitive))
        return std::make_unique<JsonSheet>();
    return std::make_unique<PdfSheet>();
}

}  // namespace

bool isDiaryExport(const QString& file) {
    return file.endsWith(".csv"_L1, Qt::CaseInsensitive) || file.endsWith(".json"_L1, Qt::CaseInsensitive) ||
           file.endsWith(".pdf"_L1, Qt::CaseInsensitive);
}

Result<DiaryReport> exportDiary(const QString& diary, const DiaryHead& kept, const QString& file) {
    const std::unique_ptr<Sheet> sheet = sheetFor(file);
    Result<DiaryReport> report = checkDiary(diary, kept, [&sheet](std::int64_t, QByteArrayView json) {
        sheet->add(QJsonDocument::fromJson(json.toByteArray()).object());
    });
    if (!report)
        return report;
    if (const auto why = writeWholeFile(file, sheet->end(report.value().head)))
        return makeError<diary_errors::notWritten>(QDir::toNativeSeparators(file), *why);
    return report;
}

}  // namespace wirepane
