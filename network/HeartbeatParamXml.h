#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device tells a server that it is alive: the "HeartbeatParam" document.
///
/// A missing attribute resets its field.
class HeartbeatParamXml : public IDomainXml
{
public:
    HeartbeatParamXml();
    ~HeartbeatParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setHeartbeatParam(const HeartbeatParam& param) { param_ = param; }
    HeartbeatParam& getHeartbeatParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const HeartbeatParam& param);
    static bool readElement(const TiXmlElement& element, HeartbeatParam& param);
    /// @}

private:
    HeartbeatParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
