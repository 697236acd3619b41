#pragma once

#include "tests/unit/plugin/fakes/FakeParts.h"
