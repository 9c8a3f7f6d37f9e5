#include "app/StartUp.h"

StartUpState startUp;
