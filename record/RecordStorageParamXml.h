#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device stores recordings: the "RecordStorageParam" document.
///
/// A missing child leaves its field. The cameras are added to those that the record has.
class RecordStorageParamXml : public IDomainXml
{
public:
    RecordStorageParamXml();
    ~RecordStorageParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordStorageParam(const RecordStorageParam& param) { param_ = param; }
    RecordStorageParam& getRecordStorageParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RecordStorageParam& param);
    static bool readElement(const TiXmlElement& element, RecordStorageParam& param);
    /// @}

private:
    RecordStorageParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
