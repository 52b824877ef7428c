// SPDX-License-Identifier: MIT
#include "store/query.h"

#include <optional>
#include <utility>

#include "store/error.h"

namespace vanzer::store {

namespace {

/// Splits a query into tokens: words, quoted texts, single marks.
class Reader {
  public:
    explicit Reader(const QString& query) : query_(query), rest_(query) { skipBlanks(); }

    [[nodiscard]] bool atEnd() const { return rest_.isEmpty(); }

    /// Consumes the keyword or mark if it comes next; false if not.
    bool accept(QStringView token) {
        const bool word = token.front().isLetter();
        const QStringView next = word ? rest_.left(wordLength()) : rest_.left(1);
        if (next.compare(token, Qt::CaseInsensitive) != 0)
            return false;
        consume(token.size());
        return true;
    }

    void expect(QStringView token) {
        if (!accept(token))
            fail();
    }

    QString word() {
        const qsizetype length = wordLength();
        if (length == 0)
            fail();
        QString result = rest_.left(length).toString();
        consume(length);
        return result;
    }

    QString quoted() {
        if (!rest_.startsWith(u'\''))
            fail();
        QString result;
        qsizetype at = 1;
        for (;; ++at) {
            const qsizetype quote = rest_.indexOf(u'\'', at);
            if (quote < 0)
                fail();
            result += rest_.mid(at, quote - at);
            at = quote + 1;
            if (at >= rest_.size() || rest_[at] != u'\'')
                break;
            result += u'\'';
        }
        consume(at);
        return result;
    }

    [[noreturn]] void fail() const {
        throw StoreError(StoreError::Kind::Other, QString(), QStringLiteral("ricerca non comprensibile: ") + query_);
    }

  private:
    [[nodiscard]] qsizetype wordLength() const {
        qsizetype length = 0;
        while (length < rest_.size() && (rest_[length].isLetterOrNumber() || rest_[length] == u'_'))
            ++length;
        return length;
    }

    void consume(qsizetype length) {
        rest_ = rest_.mid(length);
        skipBlanks();
    }

    void skipBlanks() { rest_ = rest_.trimmed(); }

    const QString& query_;
    QStringView rest_;
};

Condition readCondition(Reader& reader) {
    Condition condition;
    condition.field = reader.word();
    if (reader.accept(u"LIKE"))
        condition.test = Condition::Test::Like;
    else
        reader.expect(u"=");
    condition.text = reader.quoted();
    return condition;
}

// Brackets change nothing, as all conditions are joined by AND. They only have to match.
std::vector<Condition> readConditions(Reader& reader) {
    std::vector<Condition> conditions;
    enum class Bracket { None, Open, Closed } bracket = Bracket::None;
    do {
        if (bracket == Bracket::None && reader.accept(u"("))
            bracket = Bracket::Open;
        conditions.push_back(readCondition(reader));
        if (bracket == Bracket::Open && reader.accept(u")"))
            bracket = Bracket::Closed;
    } while (reader.accept(u"AND"));
    if (bracket == Bracket::Open)
        reader.fail();
    return conditions;
}

std::vector<Order> readOrder(Reader& reader) {
    std::vector<Order> order;
    do {
        Order next;
        next.field = reader.word();
        next.descending = reader.accept(u"DESC");
        order.push_back(std::move(next));
    } while (reader.accept(u","));
    return order;
}

} // namespace

Query parsed(const QString& text) {
    Reader reader(text);
    Query query;
    if (!reader.accept(u"SELECT")) {
        query.table = reader.word();
    } else {
        reader.expect(u"*");
        reader.expect(u"FROM");
        query.table = reader.word();
        if (reader.accept(u"WHERE"))
            query.where = readConditions(reader);
        if (reader.accept(u"ORDER")) {
            reader.expect(u"BY");
            query.orderBy = readOrder(reader);
        }
    }
    if (!reader.atEnd())
        reader.fail();
    return query;
}

QString quotato(const QString& text) {
    QString result = text;
    return result.replace(u'\'', QStringLiteral("''"));
}

} // namespace vanzer::store
