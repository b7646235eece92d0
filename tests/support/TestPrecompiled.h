#pragma once

#include "../../cmake/CorePrecompiled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/Printing.h"
#include "support/Running.h"
