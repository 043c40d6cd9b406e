#include "commands_factory.h"

namespace ovk {

ICommandsFactory::~ICommandsFactory() = default;

} // namespace ovk
