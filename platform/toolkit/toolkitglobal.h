#pragma once

#include <QtGlobal>

/// Marks what the toolkit library exports; import and export are the same on ELF systems.
#define TOOLKIT_EXPORT Q_DECL_EXPORT
