#pragma once

#include <ovk/core/application.h>
#include <ovk/core/application_controller.h>
#include <ovk/core/convert.h>
#include <ovk/core/enumerable.h>
#include <ovk/core/export.h>
#include <ovk/core/icons_controller.h>
#include <ovk/core/named.h>
#include <ovk/core/observable.h>
#include <ovk/core/observable_value.h>
#include <ovk/core/observer.h>
#include <ovk/core/pimpl_basics.h>
#include <ovk/core/root_controller.h>
#include <ovk/core/simple_lock.h>
#include <ovk/core/tree_item.h>
#include <ovk/core/utilities.h>
#include <ovk/core/version_info.h>
