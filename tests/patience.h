#pragma once

#include <QtGlobal>

/// Time limit for steps of about a second: a minute, and longer by a factor where programs run much
/// slower than they are built.
const int MaxRunMilliseconds = 60000 * qMax(1, qEnvironmentVariableIntValue("TEST_PATIENCE"));
