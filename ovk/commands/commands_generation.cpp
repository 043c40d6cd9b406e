#include "commands_generation_p.h"

#include <atomic>

namespace ovk {
namespace impl {
namespace {

std::atomic<quint64> g_generation{1};

} // namespace

quint64 CommandsGeneration()
{
    return g_generation.load(std::memory_order_acquire);
}

void NextCommandsGeneration()
{
    g_generation.fetch_add(1, std::memory_order_acq_rel);
}

} // namespace impl
} // namespace ovk
