#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// How the heads of a device are attached: the "PTZParamList" document, whose items are "PTZParam".
///
/// A missing attribute gives 0 or false. In the node form a missing "CameraId", "PTZDeviceId" or "ComId" gives 1.
class PTZParamXml : public IDomainXml
{
public:
    PTZParamXml();
    ~PTZParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPTZParamList(const std::vector<PTZParam>& params) { params_ = params; }
    std::vector<PTZParam>& getPTZParamList() { return params_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<PTZParam>& params);
    static bool readElement(const TiXmlElement& element, std::vector<PTZParam>& params);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const PTZParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<PTZParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PTZParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PTZParam>& params) const;
    bool createXmlString(const PTZParam& param, std::string& text) const;
    bool createXmlString(const std::vector<PTZParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, PTZParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<PTZParam>& params) const;
    /// @}

private:
    std::vector<PTZParam> params_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
