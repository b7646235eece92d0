#include "net/Work.h"

#include "support/FakeClock.h"

using namespace loom;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// What a store does with its Work: it loads, and shows what it loaded last.
class Shelf
{
public:
    explicit Shelf(FakeClock& clock, std::vector<std::string>& log)
        : m_clock(clock)
        , m_log(log)
    {
    }

    QCoro::Task<> load(std::chrono::milliseconds duration, std::string what)
    {
        const Work::Run run = m_loading.begin();
        std::vector<std::string>& log = m_log;
        co_await m_clock.sleep(duration, run.stop());
        if (run.isStopped()) {
            log.push_back("dropped " + what);
            co_return;
        }
        m_log.push_back("shown " + what);
    }

    Work& loading() { return m_loading; }

private:
    FakeClock& m_clock;
    std::vector<std::string>& m_log;
    Work m_loading{[this] {
        m_log.push_back(m_loading.isRunning() ? "busy" : "idle");
    }};
};

class WorkTest : public testing::Test
{
protected:
    void load(std::chrono::milliseconds duration, const char* what) const
    {
        static_cast<void>(shelf->load(duration, what));
    }

    FakeClock clock;
    std::vector<std::string> log;
    std::unique_ptr<Shelf> shelf = std::make_unique<Shelf>(clock, log);
};

TEST_F(WorkTest, TheLatestWinsWithoutAFlicker)
{
    load(10ms, "a");
    load(20ms, "b");
    load(15ms, "c");
    EXPECT_TRUE(shelf->loading().isRunning());
    clock.advance(1h);
    EXPECT_THAT(log, ElementsAre("busy", "dropped a", "dropped b", "shown c", "idle"));
}

TEST_F(WorkTest, WorkThatOutlivesItsOwnerTouchesNothing)
{
    load(10ms, "a");
    shelf.reset();
    EXPECT_THAT(log, ElementsAre("busy", "dropped a"));
    EXPECT_EQ(clock.sleepers(), 0);
}

TEST_F(WorkTest, WhoeverIsToldOfTheEndMayEndTheOwner)
{
    std::unique_ptr<Work> work;
    work = std::make_unique<Work>(
        [&log = log, &work, note = std::string("a text too long to be kept in the function object")] {
            if (!work->isRunning()) {
                work.reset();
                log.push_back(note);
            }
        });
    const auto load = [](Work* owner, FakeClock* time) -> QCoro::Task<> {
        const Work::Run run = owner->begin();
        co_await time->sleep(5ms, run.stop());
    };
    static_cast<void>(load(work.get(), &clock));
    clock.advance(5ms);
    EXPECT_FALSE(work);
    EXPECT_EQ(log.size(), 1U);
}

TEST_F(WorkTest, WorkBegunBecauseOtherWorkStoppedIsTheLatest)
{
    for (const bool endsAtOnce : {false, true}) {
        Work work;
        std::optional<Work::Run> nested;
        const auto restarting = [](Work* owner, FakeClock* time, std::optional<Work::Run>* next,
                                   bool endsNext) -> QCoro::Task<> {
            const Work::Run run = owner->begin();
            co_await time->sleep(1h, run.stop());
            next->emplace(owner->begin());
            if (endsNext)
                next->reset();
        };
        static_cast<void>(restarting(&work, &clock, &nested, endsAtOnce));
        {
            const Work::Run outer = work.begin();
            EXPECT_TRUE(outer.isStopped());
            EXPECT_EQ(nested && !nested->isStopped(), !endsAtOnce);
        }
        EXPECT_EQ(work.isRunning(), !endsAtOnce);
        nested.reset();
        EXPECT_FALSE(work.isRunning());
    }
}

TEST_F(WorkTest, StoppingMayEndTheOwner)
{
    for (const bool isBegun : {true, false}) {
        auto work = std::make_unique<Work>();
        const auto ending = [](std::unique_ptr<Work>* owner, FakeClock* time) -> QCoro::Task<> {
            const Work::Run run = (*owner)->begin();
            co_await time->sleep(1h, run.stop());
            owner->reset();
        };
        static_cast<void>(ending(&work, &clock));
        if (isBegun)
            EXPECT_TRUE(work->begin().isStopped());
        else
            work->stop();
        EXPECT_FALSE(work);
    }
}

} // namespace
