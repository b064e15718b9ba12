// The device-database classes: CCeDBDatabase, CCeDBRecord, CCeDBProp, CCeDBEnum.
#pragma once

#include "framework/db_database.h"
#include "framework/db_record.h"
