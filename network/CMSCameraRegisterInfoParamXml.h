#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Under which identities cameras register: the "CameraRegisterInfoParamList" document, and "CameraRegisterInfoParam"
/// for one in the node form.
///
/// What an item lacks is 0 or empty, in both forms; the node form prints a line for it.
class CMSCameraRegisterInfoParamXml : public IDomainXml
{
public:
    CMSCameraRegisterInfoParamXml();
    ~CMSCameraRegisterInfoParamXml() override;

    /// @name Document form
    /// See IDomainXml. The reader appends to the list, and passes over items of other names.
    /// @{
    void setCameraRegisterInfoParam(const std::vector<CMSCameraRegisterInfoParam>& infos) { infos_ = infos; }
    std::vector<CMSCameraRegisterInfoParam>& getCameraRegisterInfoParam() { return infos_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<CMSCameraRegisterInfoParam>& infos);
    static bool readElement(const TiXmlElement& element, std::vector<CMSCameraRegisterInfoParam>& infos);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const CMSCameraRegisterInfoParam& info, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<CMSCameraRegisterInfoParam>& infos,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CMSCameraRegisterInfoParam& info) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                            std::vector<CMSCameraRegisterInfoParam>& infos) const;
    bool createXmlString(const CMSCameraRegisterInfoParam& info, std::string& text) const;
    bool createXmlString(const std::vector<CMSCameraRegisterInfoParam>& infos, std::string& text) const;
    bool parseXmlString(const std::string& text, CMSCameraRegisterInfoParam& info) const;
    bool parseXmlString(const std::string& text, std::vector<CMSCameraRegisterInfoParam>& infos) const;
    /// @}

private:
    std::vector<CMSCameraRegisterInfoParam> infos_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
