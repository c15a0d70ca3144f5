#include "rtf/ContextChangedHandler.h"

CContextChangedHandler::CContextChangedHandler() = default;
CContextChangedHandler::CContextChangedHandler(const CContextChangedHandler& other) = default;
CContextChangedHandler& CContextChangedHandler::operator=(const CContextChangedHandler& /*other*/) = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of all handlers
void CContextChangedHandler::OnBookmark(std::wstring /*name*/, bool /*start*/) {}
