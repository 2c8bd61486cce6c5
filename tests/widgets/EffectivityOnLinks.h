#pragma once

#include "service/ServiceFixture.h"

namespace trellis::test {

// BIKE holds FRAME and two WHEEL; FRAME holds TUBE, and TUBE holds BOLT. BIKE is configurable.
class EffectivityOnLinks : public ServiceFixture {
protected:
    EffectivityOnLinks() {
        ImportReport report;
        EXPECT_TRUE(StructureImport::ReadText("parent,child\nFRAME,TUBE\nTUBE,BOLT\n",
                                              StructureImport::Form::Csv, "frame.csv", report, error));
        Manager().SetConfigurable(Part("BIKE"), error);
        EXPECT_EQ(Save(), 0);
    }

    // Puts an effectivity on the links between two parts, and saves.
    void Put(const ZOLQRDCfgEffectivity& term, const std::string& parent, const std::string& child) {
        Object("BIKE").GetConfigItem()->AddEffectivity(term, error);
        EXPECT_EQ(Save(), 0);
        StoredDatabase(path).Run(
            "INSERT INTO link_effectivity (id, version, last_modifier, last_update, link_id, effectivity_id) "
            "SELECT abs(random() / 2), 1, '', 0, link.id, effectivity.id "
            "FROM link, effectivity WHERE effectivity.id = (SELECT max(id) FROM effectivity) "
            "AND parent_id = (SELECT id FROM part WHERE number = '" +
            parent +
            "') "
            "AND child_id = (SELECT id FROM part WHERE number = '" +
            child + "')");
    }
};

} // namespace trellis::test
