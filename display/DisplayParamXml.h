#pragma once

#include "core/IDomainXml.h"
#include "domain/DisplayRecords.h"

#include <string>
#include <tinyxml.h>

/// How a recorder shows pictures: the "DisplayParam" document.
///
/// A missing attribute resets its field.
class DisplayParamXml : public IDomainXml
{
public:
    DisplayParamXml();
    ~DisplayParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDisplayParam(const DisplayParam& param) { param_ = param; }
    DisplayParam& getDisplayParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DisplayParam& param);
    static bool readElement(const TiXmlElement& element, DisplayParam& param);
    /// @}

private:
    DisplayParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
