#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>

/// How a device registers with central servers, second generation: the "CMSRegisterInfoParam" document.
///
/// It shares no name with the first generation, CMSRegisterParamXml. A missing part leaves its fields; in a part that
/// is there, a missing property gives 0 or empty. A list that is there takes the place of the record's; in it, elements
/// of other names are passed over.
class CMSRegisterInfoParamXml : public IDomainXml
{
public:
    CMSRegisterInfoParamXml();
    ~CMSRegisterInfoParamXml() override;

    bool createXmlString(const CMSRegisterInfoParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, CMSRegisterInfoParam& param) const;

    /// @name Writing a list
    /// Each adds its container, with an item for each entry, to the document's root.
    /// @return false if @p node is empty.
    /// @{
    bool addCMSRegisterServerListNode(const CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    bool addCMSRegisterInfoDeviceListNode(const CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    bool addCMSRegisterInfoCameraListNode(const CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    bool addCMSExternConfigListNode(const CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    /// @}

    /// @name Reading a list
    /// Each looks its container up below the document's root, and replaces the record's list.
    /// @return false, with @p param as it was, without the container, and if @p node is empty.
    /// @{
    bool getCMSRegisterServerParam(CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    bool getCMSRegisterInfoDeviceParam(CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    bool getCMSRegisterInfoCameraParam(CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    bool getCMSExternConfigParam(CMSRegisterInfoParam& param, SafePointer<DomainXmlNode>& node) const;
    /// @}
};
