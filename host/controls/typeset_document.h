// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPlainTextDocumentLayout>
#include <QString>
#include <QTextCharFormat>
#include <QTextDocument>

#include <vector>

class QWidget;

namespace wirepane {
enum class LineKind : int;

// A piece of the line under a headline; one with a target is a link.
struct LeadPart {
    QString text;
    QString target;

    bool operator==(const LeadPart&) const = default;
};

// What stands above a text without being of it.
struct TextLead {
    QString headline;
    std::vector<LeadPart> particulars;
    std::vector<LeadPart> remarks = {};  // in a line of their own

    bool isEmpty() const { return headline.isEmpty() && particulars.empty(); }
    bool operator==(const TextLead&) const = default;
};

// How a text is set. Sizes follow the document's font, which is that of the body.
struct Typography {
    double headlineSize = 15.0 / 11.0;  // as a multiple of the body's
    QColor weak;                        // of particulars and the end mark
    QColor link;

    bool operator==(const Typography&) const = default;
};

// A document that is set like a page: a lead, then a body whose lines have a measure, space between and
// after them, and tables in a fixed pitch. Only its drawing differs from a plain one: each line of the text
// is a block. Lines are laid out when they come into view.
class TypesetDocument : public QTextDocument {
    Q_OBJECT

public:
    // Lines are as wide as the viewport lets them be; it outlives the document, which the parent owns.
    TypesetDocument(const QWidget& viewport, QObject* parent);

    // Holds for what is there, too. To be called also when the document has another font.
    void setTypography(const Typography& typography);
    // Empties the document but for the lead.
    void begin(const TextLead& lead);
    // The new lead stands where the old one stood.
    void replaceLead(const TextLead& lead);
    // How many places the lead takes, its ends of lines included.
    int leadLength() const { return lengthOfLead; }
    // Puts whole lines at the end. `endsText`: the last of them says that the text ends.
    void append(const QString& portion, bool endsText);

private:
    void loadFormats();
    const QTextCharFormat& formatOf(LineKind kind) const;
    void insertParts(QTextCursor& cursor, const std::vector<LeadPart>& parts, const QTextCharFormat& plain);
    void insertAligned(QTextCursor& cursor, QStringView lines) const;

    Typography look;
    TextLead shown;
    int lengthOfLead = 0;
    QTextCharFormat headline;
    QTextCharFormat particulars;
    QTextCharFormat remarks;
    QTextCharFormat link;
    QTextCharFormat endMark;
    QTextCharFormat body;
    QTextCharFormat fixed;
    QTextCharFormat fixedWide;  // what takes two columns
};

// Places the lines of such a document.
class TypesetLayout : public QPlainTextDocumentLayout {
    Q_OBJECT

public:
    TypesetLayout(QTextDocument& document, const QWidget& viewport);

    QRectF blockBoundingRect(const QTextBlock& block) const override;
    QSizeF documentSize() const override;
    // Forgets how wide its lines were.
    void forgetWidth() { widest = 0; }

private:
    void layOut(const QTextBlock& block);
    qreal measure() const;

    const QWidget& window;
    qreal widest = 0;  // of the lines that have been laid out and are not wrapped
};

}  // namespace wirepane
