#include "ftp/TransferQueue.h"
