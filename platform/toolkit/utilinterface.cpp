#include "utilinterface.h"

UtilInterface::~UtilInterface() { }
