#include "model/Viga.h"
