#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// One recorded file: the "RecordFile" document, an answer of the flat search.
///
/// A missing attribute resets its field. A size of 2 GiB or more is written wrong: the document has 32 bits for it, and
/// a sign.
class RecordFileXml : public IDomainXml
{
public:
    RecordFileXml();
    ~RecordFileXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordFile(const RecordFile& file) { file_ = file; }
    RecordFile& getRecordFile() { return file_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RecordFile& file);
    static bool readElement(const TiXmlElement& element, RecordFile& file);
    /// @}

private:
    RecordFile file_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
