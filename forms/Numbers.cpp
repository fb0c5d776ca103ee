#include "forms/Numbers.h"
