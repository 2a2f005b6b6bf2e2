#include "analysis/AnalisisVigasP.h"
