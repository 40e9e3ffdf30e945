#pragma once

/// Marks exported symbols of the hardware library.
#define HAL_EXPORT __attribute__((visibility("default")))
