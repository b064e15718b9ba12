// The calls on databases as a whole, and on handles.
#include <windbase.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/framework/database/conversion.h"
#include "platform/framework/database/device_store.h"
#include "platform/wide_text.h"

using tavix::Outcome;
using tavix::SortOrder;
using tavix::StoreError;

namespace {

std::u16string_view Text(LPCWSTR text) {
  return text ? tavix::AsUtf16(text, wcslen(text)) : std::u16string_view();
}

// Placeholders for the generic order are left out.
std::vector<SortOrder> ToSortOrders(const SORTORDERSPEC* sortings, WORD count) {
  std::vector<SortOrder> orders;
  for (WORD i = 0; i < count; ++i) {
    const bool placeholder =
        sortings[i].propid == 0 && (sortings[i].dwFlags & CEDB_SORT_GENERICORDER);
    if (!placeholder) orders.push_back(ToSortOrder(sortings[i]));
  }
  return orders;
}

CEDBASEINFO ToBaseInfo(const tavix::DatabaseInfo& database) {
  CEDBASEINFO info{};
  info.dwFlags = CEDB_VALIDNAME | CEDB_VALIDTYPE | CEDB_VALIDSORTSPEC | CEDB_VALIDMODTIME |
                 CEDB_VALIDDBFLAGS | CEDB_NOCOMPRESS;
  std::ranges::copy(database.name, info.szDbaseName);
  info.dwDbaseType = database.type;
  info.wNumRecords = static_cast<WORD>(std::min<std::uint32_t>(database.record_count, 0xFFFF));
  info.wNumSortOrder = static_cast<WORD>(database.order_count);
  info.dwSize = static_cast<DWORD>(std::min<std::uint64_t>(database.bytes, 0xFFFFFFFF));
  info.ftLastModified = {static_cast<DWORD>(database.modified),
                         static_cast<DWORD>(database.modified >> 32)};
  std::ranges::transform(database.Orders(), info.rgSortSpecs, ToSortSpec);
  return info;
}

}  // namespace

CEOID WINAPI CeCreateDatabase(LPWSTR lpszName, DWORD dwDbaseType, WORD wNumSortOrder,
                              SORTORDERSPEC* rgSortSpecs) {
  if (wNumSortOrder > 0 && !rgSortSpecs) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  const Outcome<tavix::ObjectId> database = DeviceStore().CreateDatabase(
      Text(lpszName), dwDbaseType, ToSortOrders(rgSortSpecs, wNumSortOrder));
  return Worked(database.error) ? database.value : 0;
}

BOOL WINAPI CeDeleteDatabase(CEOID oidDbase) {
  return Worked(DeviceStore().DeleteDatabase(oidDbase));
}

HANDLE WINAPI CeOpenDatabase(PCEOID poid, LPWSTR lpszName, CEPROPID propid, DWORD dwFlags,
                             HWND /*hwndNotify*/) {
  if (!poid) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return INVALID_HANDLE_VALUE;
  }
  CEOID oid = *poid;
  if (oid == 0) {
    const Outcome<tavix::ObjectId> named = DeviceStore().FindDatabase(Text(lpszName));
    if (!Worked(named.error)) return INVALID_HANDLE_VALUE;
    oid = named.value;
  }
  const Outcome<tavix::StoreHandle> handle =
      DeviceStore().Open(oid, tavix::PropertyId(propid), (dwFlags & CEDB_AUTOINCREMENT) != 0);
  if (!Worked(handle.error)) return INVALID_HANDLE_VALUE;
  *poid = oid;
  return ToHandle(handle.value);
}

BOOL WINAPI CeCloseDatabaseHandle(HANDLE hObject) {
  return Worked(DeviceStore().Close(ToStoreHandle(hObject)));
}

HANDLE WINAPI CeFindFirstDatabase(DWORD dwDbaseType) {
  const Outcome<tavix::StoreHandle> walk = DeviceStore().OpenEnumeration(dwDbaseType);
  return Worked(walk.error) ? ToHandle(walk.value) : INVALID_HANDLE_VALUE;
}

CEOID WINAPI CeFindNextDatabase(HANDLE hEnum) {
  const Outcome<tavix::ObjectId> database = DeviceStore().NextDatabase(ToStoreHandle(hEnum));
  return Worked(database.error) ? database.value : 0;
}

BOOL WINAPI CeOidGetInfo(CEOID oid, CEOIDINFO* poidInfo) {
  if (!poidInfo) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  const Outcome<tavix::ObjectInfo> info = DeviceStore().Info(oid);
  if (!info) {
    // The usual code for an unknown identifier.
    SetLastError(info.error == StoreError::kNotFound ? ERROR_INVALID_HANDLE
                                                     : ToLastError(info.error));
    return FALSE;
  }
  *poidInfo = {};
  if (info.value.is_database) {
    poidInfo->wObjType = OBJTYPE_DATABASE;
    poidInfo->infDatabase = ToBaseInfo(info.value.database);
  } else {
    poidInfo->wObjType = OBJTYPE_RECORD;
    poidInfo->infRecord.oidParent = info.value.parent;
  }
  return TRUE;
}

BOOL WINAPI CeSetDatabaseInfo(CEOID oidDbase, CEDBASEINFO* pNewInfo) {
  if (!pNewInfo ||
      ((pNewInfo->dwFlags & CEDB_VALIDSORTSPEC) && pNewInfo->wNumSortOrder > CEDB_MAXSORTORDER)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  tavix::DatabaseChange change;
  std::vector<SortOrder> orders;
  if (pNewInfo->dwFlags & CEDB_VALIDNAME) {
    change.name =
        tavix::AsUtf16(pNewInfo->szDbaseName, wcsnlen(pNewInfo->szDbaseName, CEDB_MAXDBASENAMELEN));
  }
  if (pNewInfo->dwFlags & CEDB_VALIDTYPE) change.type = pNewInfo->dwDbaseType;
  if (pNewInfo->dwFlags & CEDB_VALIDSORTSPEC) {
    orders = ToSortOrders(pNewInfo->rgSortSpecs, pNewInfo->wNumSortOrder);
    change.orders = orders;
  }
  return Worked(DeviceStore().ChangeDatabase(oidDbase, change));
}
