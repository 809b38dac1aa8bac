#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// What recordings are searched for: the "RecordFileSearchParam" document of the flat search.
///
/// A missing attribute resets its field.
class RecordFileSearchParamXml : public IDomainXml
{
public:
    RecordFileSearchParamXml();
    ~RecordFileSearchParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordFileSearchParam(const RecordFileSearchParam& param) { param_ = param; }
    RecordFileSearchParam& getRecordFileSearchParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RecordFileSearchParam& param);
    static bool readElement(const TiXmlElement& element, RecordFileSearchParam& param);
    /// @}

private:
    RecordFileSearchParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
