// The device-database classes: CCeDBDatabase, CCeDBRecord, CCeDBProp, CCeDBEnum.
#pragma once

#include "framework/db_database.h"
#include "framework/db_enum.h"
#include "framework/db_prop.h"
#include "framework/db_record.h"
