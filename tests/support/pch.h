#pragma once

#include "../../ovk/pch_p.h"
#include <QtTest/QtTest>
