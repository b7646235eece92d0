#include "platform/EndRequests.h"

#include "support/Running.h"

#include <gtest/gtest.h>

#include <csignal>

using namespace loom;

namespace
{

TEST(EndRequests, WhoAsksOnceIsHeardAndWhoAsksTwiceIsObeyed)
{
    for (const int request : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(request, SIG_DFL); // who runs the tests may have ignored it
        int asked = 0;
        {
            const EndRequests requests([&asked] { ++asked; });
            raise(request);
            EXPECT_EQ(asked, 0) << "outside of the event loop";
            waitUntil([&asked] { return asked == 1; }, "the request is heard");
            EXPECT_EQ(std::signal(request, SIG_DFL), SIG_DFL) << "the next one is the system's";
        }
        struct sigaction left{};
        sigaction(request, nullptr, &left);
        EXPECT_EQ(left.sa_handler, SIG_DFL);
    }
}

TEST(EndRequests, AProgramThatOutlivesItsTerminalStaysDeaf)
{
    std::signal(SIGHUP, SIG_IGN);
    int asked = 0;
    {
        const EndRequests requests([&asked] { ++asked; });
        raise(SIGHUP);
        drainEvents();
    }
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

} // namespace
