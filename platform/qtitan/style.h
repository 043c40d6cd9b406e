#pragma once

#include "draw_helpers.h"
#include "office_style.h"
#include "ribbon_style.h"
