#include "rtf/ContextChangedHandler.h"

CContextChangedHandler::CContextChangedHandler() = default;
CContextChangedHandler::CContextChangedHandler(const CContextChangedHandler& other) = default;
CContextChangedHandler& CContextChangedHandler::operator=(const CContextChangedHandler& other) = default;

void CContextChangedHandler::OnBookmark(std::wstring /*name*/, bool /*start*/) {}
