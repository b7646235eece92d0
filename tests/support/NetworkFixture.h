#pragma once

#include "net/HttpTransport.h"

#include "support/FakeClock.h"
#include "support/FakeNetworkStatus.h"
#include "support/FakeRandom.h"
#include "support/FakeSession.h"
#include "support/TestServer.h"

#include <gtest/gtest.h>

namespace loom
{

/// What a client of a server is made of. A request that the test did not foretell fails it.
class NetworkFixture : public testing::Test
{
protected:
    void signIn()
    {
        session.signIn(QStringLiteral("app-1"), QStringLiteral("jane@mail.example"), QStringLiteral("Jane"));
    }

    FakeClock clock;
    FakeNetworkStatus network;
    FakeSession session;
    FakeRandom random;
    TestServer server;
    HttpTransport transport{clock, network};
};

} // namespace loom
