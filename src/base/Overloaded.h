#pragma once

namespace loom
{

/// One function for every case of a variant, for std::visit.
template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};

} // namespace loom
