#pragma once

#include "catalog/SearchSuggestions.h"
#include "commerce/PieceIndex.h"
#include "commerce/SuggestionSlots.h"
#include "net/Work.h"

#include <qcoro/qcorotask.h>

#include <chrono>
#include <functional>

namespace loom
{

class Clock;
class MarketStore;
class RecentSearches;
class StorefrontAPI;

/// What a search field suggests while one types: at once what this machine knows, and what the store answers in the
/// places left for it. One per field; main thread.
class SuggestionsModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool isLink READ isLink NOTIFY textChanged)
    Q_PROPERTY(bool isAnswered READ isAnswered NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged)
    Q_PROPERTY(loom::SuggestionSlots* queries READ queries CONSTANT)
    Q_PROPERTY(loom::SuggestionSlots* collections READ collections CONSTANT)
    Q_PROPERTY(loom::SuggestionSlots* recents READ recents CONSTANT)
    Q_PROPERTY(loom::SuggestionSlots* pieces READ pieces CONSTANT)
    Q_PROPERTY(Section currentSection READ currentSection NOTIFY currentChanged)
    Q_PROPERTY(QString currentKey READ currentKey NOTIFY currentChanged)
    Q_PROPERTY(QString currentText READ currentText NOTIFY currentChanged)
    Q_PROPERTY(QString currentSpoken READ currentSpoken NOTIFY currentChanged)
    Q_PROPERTY(int recentRoom READ recentRoom WRITE setRecentRoom NOTIFY changed)
    Q_PROPERTY(int pieceRoom READ pieceRoom WRITE setPieceRoom NOTIFY changed)

public:
    /// In the order in which the keys go through them.
    enum Section { None = -1, Queries, Collections, Recents, Pieces };
    Q_ENUM(Section)

    static constexpr std::chrono::milliseconds pause{120}; ///< between the last key and the question to the store
    static constexpr int recentsBesideText = 3;

    /// `knownPieces` gives the pieces the shopper has seen or keeps, those to be suggested first at the front.
    SuggestionsModel(StorefrontAPI& api, const MarketStore& market, RecentSearches& searches,
                     std::function<std::vector<ProductHit>()> knownPieces, Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const QString& text() const { return m_text; }
    void setText(const QString& text);
    /// The text is the address of something, and nothing to search for.
    [[nodiscard]] bool isLink() const;
    /// Nothing more will come for this text.
    [[nodiscard]] bool isAnswered() const { return m_isAnswered; }
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] SuggestionSlots* queries() { return &m_queries; }
    [[nodiscard]] SuggestionSlots* collections() { return &m_collections; }
    [[nodiscard]] SuggestionSlots* recents() { return &m_recents; }
    [[nodiscard]] SuggestionSlots* pieces() { return &m_pieces; }
    [[nodiscard]] Section currentSection() const { return m_currentSection; }
    /// Of the row that the keys have led to; empty for none.
    [[nodiscard]] QString currentKey() const { return current().key; }
    [[nodiscard]] QString currentText() const { return current().text; }
    /// As assistive tools say it.
    [[nodiscard]] QString currentSpoken() const;
    /// How many of them there is room for.
    [[nodiscard]] int recentRoom() const { return m_recentRoom; }
    void setRecentRoom(int room);
    [[nodiscard]] int pieceRoom() const { return m_pieceRoom; }
    void setPieceRoom(int room);

    /// Takes in what the shopper has seen and kept, before anything is typed.
    Q_INVOKABLE void prepare();
    /// Goes to the next row, or back; beyond either end lies the field itself.
    Q_INVOKABLE void move(int step);
    /// The shopper searches for this.
    Q_INVOKABLE void noteSearch(const QString& text);
    Q_INVOKABLE void forgetSearch(const QString& text);

Q_SIGNALS:
    void textChanged();
    void changed();
    void isEmptyChanged();
    void currentChanged();

private:
    [[nodiscard]] QString typed() const { return m_text.trimmed().left(200); }
    [[nodiscard]] SuggestionSlots& slotsOf(Section section);
    [[nodiscard]] Suggestion current() const;
    [[nodiscard]] QCoro::Task<> index();
    [[nodiscard]] QCoro::Task<> ask();
    void dropWhatDoesNotMatch();
    void setCurrent(Section section, int place);
    void show();
    void showRecents();
    [[nodiscard]] std::vector<Suggestion> wantedQueries() const;
    [[nodiscard]] std::vector<Suggestion> wantedPieces() const;

    StorefrontAPI& m_api;
    RecentSearches& m_searches;
    std::function<std::vector<ProductHit>()> m_knownPieces;
    Clock& m_clock;
    QString m_text;
    PieceIndex m_known;
    SearchSuggestions m_answer; ///< the latest, until there is one for this text
    bool m_isAnswered = true;
    bool m_wasEmpty = true;
    SuggestionSlots m_queries;
    SuggestionSlots m_collections;
    SuggestionSlots m_recents;
    SuggestionSlots m_pieces;
    Section m_currentSection = None;
    int m_currentPlace = -1;
    int m_recentRoom;
    int m_pieceRoom;
    Work m_indexing;
    Work m_asking;
};

} // namespace loom
