#pragma once

#include <QtGlobal>

/// Marks exported symbols of the toolkit library; import and export are the same on ELF systems.
#define TOOLKIT_EXPORT Q_DECL_EXPORT
