#pragma once

/// @file
/// The base of the codecs, and the anatomy that all of them share.

/// Base of nearly every codec.
///
/// A codec turns one record into an XML document of the device's control protocol, and such a document back into a
/// record. It is named after its record: `NTPParamXml` carries an `NTPParam`. Nothing calls a codec through this base:
/// callers hold the concrete class.
///
/// @par Document form
/// The codec is an object for one document: it owns the record, the text and the XML document.
/// - To write: `set<Record>`, `createXmlString()`, `getXmlString()`.
/// - To read: `setXmlString`, `parseXmlString()`, `get<Record>`.
///
/// `createXmlNode` appends the record's element to the document and never clears it, so that a second one stands behind
/// the first; one instance serves one document. `getXmlNode` gives that document. `setXmlNode` and `parseXmlNode` read
/// from an element inside somebody else's document, which has to outlive the call.
///
/// @par Node form
/// Operations on a tree of `DomainXmlNode`, which take everything as arguments and keep nothing. The two forms of a
/// codec may differ in what a missing value gives; the codec's own page says so.
///
/// @par The stateless pair
/// `writeElement` appends a record's element below a parent and `readElement` reads one: the whole content of a
/// document codec, without an instance. Codecs that embed another one's document call its pair.
///
/// @par Missing and bad values
/// The reader of each codec says what a missing attribute gives: the field is *reset* to zero, empty or false, or it is
/// *left* as it was, or it takes a default of its own. A number reads as its leading digits, and as 0 when it has none.
/// None of these is an error.
///
/// @par Errors
/// Reading gives false for a text that is malformed, empty, nested deeper than 32 elements, has an element of more than
/// 256 attributes, or has another root. The record is then untouched. A false result from behind the root leaves in the
/// record what was read so far, unless the codec's page says otherwise.
///
/// @par Threads
/// Codecs share nothing. One instance belongs to one thread at a time; different instances need no lock.
class IDomainXml
{
public:
    IDomainXml() = default;
    IDomainXml(const IDomainXml&) = delete;
    IDomainXml& operator=(const IDomainXml&) = delete;
    virtual ~IDomainXml();
};
