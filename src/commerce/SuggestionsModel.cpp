#include "commerce/SuggestionsModel.h"

#include "base/Clock.h"
#include "catalog/DisplayText.h"
#include "catalog/MarketStore.h"
#include "catalog/RecentSearches.h"
#include "catalog/StorefrontAPI.h"

#include <QRegularExpression>
#include <QSet>
#include <QtConcurrent>

namespace loom
{

namespace
{

constexpr int queryPlaces = 4;
constexpr int collectionPlaces = 2;
constexpr int piecePlaces = 6;
constexpr qsizetype longestLine = 120;

/// A row of its own, whatever the text: it has the first place as long as there is one. No line can be this.
const QString typedKey = QStringLiteral("\n");

Suggestion pieceRow(const ProductHit& piece)
{
    return {.key = piece.handle,
            .text = displayLine(piece.title, longestLine),
            .vendor = displayLine(piece.vendor, longestLine),
            .picture = piece.imageURL.value_or(QString()),
            .emphasis = {}};
}

} // namespace

SuggestionsModel::SuggestionsModel(StorefrontAPI& api, const MarketStore& market, RecentSearches& searches,
                                   std::function<std::vector<ProductHit>()> knownPieces, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_api(api)
    , m_searches(searches)
    , m_knownPieces(std::move(knownPieces))
    , m_clock(clock)
    , m_queries(queryPlaces)
    , m_collections(collectionPlaces)
    , m_recents(RecentSearches::maximum)
    , m_pieces(piecePlaces)
    , m_recentRoom(RecentSearches::maximum)
    , m_pieceRoom(piecePlaces)
{
    connect(&searches, &RecentSearches::changed, this, &SuggestionsModel::showRecents);
    connect(&market, &MarketStore::revisionChanged, this, [this] {
        if (!typed().isEmpty() && !isLink())
            static_cast<void>(ask());
    });
    showRecents();
}

bool SuggestionsModel::isLink() const
{
    static const QRegularExpression scheme(QStringLiteral("^[a-z][a-z0-9+.-]*://"),
                                           QRegularExpression::CaseInsensitiveOption);
    const QString text = typed();
    return text.startsWith(QLatin1Char('/')) || scheme.match(text).hasMatch();
}

bool SuggestionsModel::isEmpty() const
{
    return m_queries.filled() + m_collections.filled() + m_recents.filled() + m_pieces.filled() == 0;
}

void SuggestionsModel::setText(const QString& text)
{
    if (text == m_text)
        return;
    const QString before = typed();
    m_text = text;
    setCurrent(None, -1);
    Q_EMIT textChanged();
    if (typed() == before)
        return;
    if (typed().isEmpty() || isLink()) {
        m_asking.stop();
        m_answer = {};
        m_isAnswered = true;
    } else {
        m_isAnswered = false;
    }
    show();
    // The shopper acts: what is left of the last text may move together.
    for (SuggestionSlots* const section : {&m_queries, &m_collections, &m_pieces})
        section->closeUp();
    if (!m_isAnswered)
        static_cast<void>(ask());
}

void SuggestionsModel::prepare()
{
    static_cast<void>(index());
}

QCoro::Task<> SuggestionsModel::index()
{
    const Work::Run run = m_indexing.begin();
    PieceIndex built = co_await QtConcurrent::run([pieces = m_knownPieces()] { return PieceIndex(pieces); });
    if (run.isStopped())
        co_return;
    m_known = std::move(built);
    show();
}

QCoro::Task<> SuggestionsModel::ask()
{
    const Work::Run run = m_asking.begin();
    co_await m_clock.sleep(pause, run.stop());
    if (run.isStopped())
        co_return;
    auto answer = co_await m_api.suggest(typed(), run.stop());
    if (run.isStopped())
        co_return;
    if (answer)
        m_answer = *std::move(answer);
    else
        dropWhatDoesNotMatch(); // of the answers before; what is known here stays
    m_isAnswered = true;
    show();
}

void SuggestionsModel::dropWhatDoesNotMatch()
{
    const QString wanted = FoldedText::fold(typed());
    const auto differs = [&](const QString& text) {
        return !matchesWords(FoldedText::fold(text), wanted);
    };
    m_answer.queries.removeIf(differs);
    std::erase_if(m_answer.collections, [&](const auto& collection) { return differs(collection.title); });
    std::erase_if(m_answer.products,
                  [&](const ProductHit& piece) { return differs(piece.title + QLatin1Char(' ') + piece.vendor); });
}

void SuggestionsModel::show()
{
    const QString ledTo = current().key;
    m_queries.merge(wantedQueries());
    std::vector<Suggestion> collections;
    for (const SearchSuggestions::Collection& collection : m_answer.collections) {
        const QString title = displayLine(collection.title, longestLine);
        collections.push_back({.key = collection.handle, .text = title, .emphasis = lastWordMatch(title, typed())});
    }
    m_collections.merge(collections);
    if (typed().isEmpty())
        m_pieces.place(wantedPieces());
    else
        m_pieces.merge(wantedPieces());
    // Something else in the place of the row that the keys have led to is not what was chosen.
    if (current().key != ledTo)
        setCurrent(None, -1);
    showRecents();
}

void SuggestionsModel::showRecents()
{
    // Beside a text only a few, those that it means before the others.
    const QString wanted = FoldedText::fold(typed());
    QStringList texts = m_searches.list();
    qsizetype room = m_recentRoom;
    if (!wanted.isEmpty()) {
        texts.clear();
        QStringList others;
        for (const QString& text : m_searches.list()) {
            const QString folded = FoldedText::fold(text);
            if (folded != wanted)
                (matchesWords(folded, wanted) ? texts : others).append(text);
        }
        texts.append(others);
        room = std::min<qsizetype>(room, recentsBesideText);
    }
    std::vector<Suggestion> rows;
    for (const QString& text : texts.mid(0, isLink() ? 0 : room))
        rows.push_back({.key = text, .text = text, .emphasis = lastWordMatch(text, typed())});
    const QString ledTo = current().key;
    m_recents.place(rows);
    // Of the recent ones the next moves up when one is forgotten.
    if (m_currentSection != None && !slotsOf(m_currentSection).at(m_currentPlace))
        setCurrent(None, -1);
    else if (current().key != ledTo)
        Q_EMIT currentChanged();
    Q_EMIT changed();
    if (std::exchange(m_wasEmpty, isEmpty()) != isEmpty())
        Q_EMIT isEmptyChanged();
}

std::vector<Suggestion> SuggestionsModel::wantedQueries() const
{
    const QString text = displayLine(typed(), longestLine);
    if (text.isEmpty())
        return {};
    std::vector<Suggestion> rows{{.key = typedKey, .text = text}};
    QSet<QString> known{FoldedText::fold(text)};
    for (const QString& query : m_answer.queries) {
        const QString line = displayLine(query, longestLine);
        const QString folded = FoldedText::fold(line);
        if (folded.isEmpty() || known.contains(folded))
            continue;
        known.insert(folded);
        rows.push_back({.key = line, .text = line, .emphasis = lastWordMatch(line, text)});
    }
    return rows;
}

std::vector<Suggestion> SuggestionsModel::wantedPieces() const
{
    const auto room = static_cast<std::size_t>(m_pieceRoom);
    std::vector<Suggestion> rows;
    QSet<QString> known;
    const auto add = [&](const ProductHit& piece) {
        if (rows.size() >= room || known.contains(piece.handle))
            return;
        known.insert(piece.handle);
        rows.push_back(pieceRow(piece));
    };
    if (typed().isEmpty()) {
        for (const ProductHit& piece : m_known.pieces() | std::views::take(room))
            add(piece);
        return rows;
    }
    // Half of the room is the store's, until it has answered: it knows pieces that the shopper does not.
    const std::vector<ProductHit> local = isLink() ? std::vector<ProductHit>() : m_known.find(typed(), room);
    for (const ProductHit& piece : local | std::views::take((room + 1) / 2))
        add(piece);
    for (const ProductHit& piece : m_answer.products)
        add(piece);
    if (m_isAnswered) {
        for (const ProductHit& piece : local)
            add(piece);
    }
    return rows;
}

SuggestionSlots& SuggestionsModel::slotsOf(Section section)
{
    switch (section) {
    case Collections:
        return m_collections;
    case Recents:
        return m_recents;
    case Pieces:
        return m_pieces;
    default:
        return m_queries;
    }
}

Suggestion SuggestionsModel::current() const
{
    const auto place = [this](const SuggestionSlots& section) {
        const Suggestion* const row = section.at(m_currentPlace);
        return row ? *row : Suggestion();
    };
    switch (m_currentSection) {
    case Queries:
        return place(m_queries);
    case Collections:
        return place(m_collections);
    case Recents:
        return place(m_recents);
    case Pieces:
        return place(m_pieces);
    case None:
        break;
    }
    return {};
}

QString SuggestionsModel::currentSpoken() const
{
    const Suggestion row = current();
    return row.vendor.isEmpty() ? row.text : row.text + QStringLiteral(", ") + row.vendor;
}

void SuggestionsModel::move(int step)
{
    struct Row {
        Section section;
        int place;
    };
    std::vector<Row> rows;
    std::ptrdiff_t current = -1;
    for (const Section section : {Queries, Collections, Recents, Pieces}) {
        for (int place = 0; place < slotsOf(section).rowCount(); ++place) {
            const Suggestion* const row = slotsOf(section).at(place);
            if (!row || row->key == typedKey) // what is typed stands for the field
                continue;
            if (section == m_currentSection && place == m_currentPlace)
                current = std::ssize(rows);
            rows.push_back({section, place});
        }
    }
    // The field lies before the first and after the last.
    const std::ptrdiff_t count = std::ssize(rows) + 1;
    const std::ptrdiff_t next = ((current + 1 + step) % count + count) % count - 1;
    if (next < 0)
        setCurrent(None, -1);
    else
        setCurrent(rows[static_cast<std::size_t>(next)].section, rows[static_cast<std::size_t>(next)].place);
}

void SuggestionsModel::setCurrent(Section section, int place)
{
    if (section == m_currentSection && place == m_currentPlace)
        return;
    if (m_currentSection != None)
        slotsOf(m_currentSection).setCurrent(-1);
    m_currentSection = section;
    m_currentPlace = place;
    if (section != None)
        slotsOf(section).setCurrent(place);
    Q_EMIT currentChanged();
}

void SuggestionsModel::setRecentRoom(int room)
{
    room = std::max(0, room);
    if (std::exchange(m_recentRoom, room) != room)
        showRecents();
}

void SuggestionsModel::setPieceRoom(int room)
{
    room = std::clamp(room, 0, piecePlaces);
    if (std::exchange(m_pieceRoom, room) == room)
        return;
    show();
}

void SuggestionsModel::noteSearch(const QString& text)
{
    m_searches.add(text);
}

void SuggestionsModel::forgetSearch(const QString& text)
{
    m_searches.remove(text);
}

} // namespace loom
