#pragma once

#include <QtGlobal>

namespace ovk {
namespace impl {

/// A number that grows whenever an identifier may have come to stand for another command than
/// before: a command was created or destroyed, a factory came or went, the layouts were
/// invalidated. Who remembers what an identifier stands for remembers this number with it.
quint64 CommandsGeneration();

/// Makes it grow. Any thread may call it.
void NextCommandsGeneration();

} // namespace impl
} // namespace ovk
