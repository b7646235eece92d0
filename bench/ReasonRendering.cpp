#include "discovery/OccasionWords.h"
#include "discovery/RecoReason.h"
#include "discovery/StyleWords.h"

#include <QCoreApplication>
#include <QTranslator>
#include <benchmark/benchmark.h>

using namespace loom;

namespace
{

constexpr int reasonCount = 10'000;

/// A Chinese window: every text by its key, put together with the blanks that do not belong there.
class Chinese final : public QTranslator
{
public:
    [[nodiscard]] QString translate(const char*, const char* source, const char* key, int) const override
    {
        const auto known = m_texts.constFind(QLatin1String(key));
        if (known != m_texts.cend())
            return *known;
        const bool isPattern = QLatin1String(source).contains(QLatin1String("%1"));
        return *m_texts.insert(QLatin1String(key),
                               isPattern ? QString::fromUtf8("因为你喜欢 %1 风格") : QString::fromUtf8("新 中式"));
    }
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    mutable QHash<QLatin1String, QString> m_texts;
};

/// Every template, every word, labels in the language of the window and in another, and what no table knows.
std::vector<RecoReason> reasons()
{
    static constexpr std::array templates{"similar_shoppers", "browsing",     "handpicked",   "trending",  "new_in",
                                          "matches_search",   "because_like", "for_occasion", "style_pick"};
    std::vector<RecoReason> list;
    list.reserve(reasonCount);
    for (int i = 0; i < reasonCount; ++i) {
        RecoReason reason{.templateName = QLatin1String(templates[static_cast<std::size_t>(i) % templates.size()]),
                          .isNew = i % 4 == 0};
        const int turn = i / static_cast<int>(templates.size());
        const auto place = static_cast<std::size_t>(turn);
        const std::string_view word = i % 2 == 0 ? styleWords[place % styleWords.size()].input
                                                 : occasionWords[place % occasionWords.size()].input;
        reason.value = turn % 11 == 0 ? QString::fromUtf8("红色 连衣裙")
                                      : QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size()));
        if (turn % 3 == 0) {
            reason.label = QString::fromUtf8("法式 复古");
            reason.labelLanguage = turn % 2 == 0 ? QStringLiteral("zh-CN") : QStringLiteral("ja");
        }
        list.push_back(std::move(reason));
    }
    return list;
}

void rendering(benchmark::State& state)
{
    const std::vector<RecoReason> list = reasons();
    for (auto _ : state) {
        for (const RecoReason& reason : list) {
            auto text = reason.render(AppLanguage::ZhHans);
            benchmark::DoNotOptimize(text);
        }
    }
}
BENCHMARK(rendering)->Unit(benchmark::kMicrosecond);

/// The same texts from two halves each: the least that making them can cost.
void concatenating(benchmark::State& state)
{
    std::vector<std::pair<QString, QString>> halves;
    for (const RecoReason& reason : reasons()) {
        const QString text = reason.render(AppLanguage::ZhHans).value_or(QString());
        halves.emplace_back(text.first(text.size() / 2), text.sliced(text.size() / 2));
    }
    for (auto _ : state) {
        for (const auto& [first, second] : halves) {
            QString text = first + second;
            benchmark::DoNotOptimize(text);
        }
    }
}
BENCHMARK(concatenating)->Unit(benchmark::kMicrosecond);

/// What looking up the texts costs of the rendering.
void looking(benchmark::State& state)
{
    for (auto _ : state) {
        for (int i = 0; i < reasonCount; ++i) {
            QString text = styleWords[static_cast<std::size_t>(i) % styleWords.size()].text.translated();
            benchmark::DoNotOptimize(text);
        }
    }
}
BENCHMARK(looking)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Chinese chinese;
    QCoreApplication::installTranslator(&chinese);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
