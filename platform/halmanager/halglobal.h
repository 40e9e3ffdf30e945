#pragma once

/// Marks what the hardware library exports.
#define HAL_EXPORT __attribute__((visibility("default")))
