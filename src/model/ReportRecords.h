#pragma once

#include "foundation/RecordReader.h"

class CIDManager;
class CReportDocument;

// The flat records of a report file: those of all zones and of all their objects, behind the `ReportDocument` element.
namespace zeb {

/// Reads the records into the objects that the document and its zones have made from identifiers. A record whose
/// identifier is unknown is skipped; an element that is no record ends the reading.
/// @param reader stands behind the `ReportDocument` element
/// @param document null if the file has none; then no object is known
void ReadReportRecords(RecordReader& reader, CReportDocument* document, CIDManager& ids);

/// Writes the records in the order in which they are read: zones, value holders, texts, pictures, rectangles, lines,
/// table cells, relations, each group through all zones. Texts keep the unique font name.
void WriteReportRecords(zebxmln::CXMLNode* root, CReportDocument& document, CIDManager& ids);

}  // namespace zeb
