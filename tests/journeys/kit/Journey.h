#pragma once

#include "kit/Sandbox.h"
#include "kit/Shop.h"
#include "support/Running.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace loom
{

/// A journey through the real window against the sandbox store. At its end it fails for every request that the store
/// did not expect and for every warning of Qt or of a page; a failed one leaves a picture of each window in the folder
/// that LOOM_JOURNEY_PICTURES names.
class Journey : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Opens the application's first window.
    void start(const QString& link = {}, const Circumstances& circumstances = {});
    /// Goes to a link as a shopper does who has copied it.
    void follow(const QString& link) const;

    /// Warnings with these words in them are what the journey is about.
    void tolerate(const QString& words) { m_tolerated.append(words); }
    /// What the browser engine says of its own modules, when they are loaded.
    void tolerateEngine();

    Sandbox store;
    std::unique_ptr<Shop> shop;
    WindowDriver window; ///< the window that was opened last

private:
    void saveWindows() const;

    QStringList m_tolerated;
};

} // namespace loom
