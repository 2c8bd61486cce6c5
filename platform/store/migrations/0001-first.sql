-- Parts, links, configurable parts, dictionaries, effectivities, people, rights, administrator values, events.
-- Names in a dictionary are unique at the end of a save, not at each statement: the store judges them itself, so
-- their indexes are plain. Identifiers of parts and links are 50 hexadecimal digits.

CREATE TABLE store_info (
    leading_string TEXT NOT NULL,
    schema_version BIGINT NOT NULL
);

CREATE TABLE part (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    uuid TEXT NOT NULL, kind TEXT NOT NULL, number TEXT NOT NULL, revision TEXT NOT NULL, name TEXT NOT NULL,
    site_responsible TEXT NOT NULL
);
CREATE UNIQUE INDEX part_uuid ON part (uuid);
CREATE INDEX part_number ON part (number, revision);
CREATE INDEX part_name ON part (name);

CREATE TABLE part_attribute (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    part_id BIGINT NOT NULL REFERENCES part (id) DEFERRABLE INITIALLY DEFERRED,
    name TEXT NOT NULL, value TEXT NOT NULL
);
CREATE INDEX part_attribute_part ON part_attribute (part_id, name);

CREATE TABLE link (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    uuid TEXT NOT NULL, client_identifier TEXT NOT NULL,
    parent_id BIGINT NOT NULL REFERENCES part (id) DEFERRABLE INITIALLY DEFERRED,
    child_id BIGINT NOT NULL REFERENCES part (id) DEFERRABLE INITIALLY DEFERRED,
    name TEXT NOT NULL, position BIGINT NOT NULL, origin_uuid TEXT NOT NULL, origin_child_uuid TEXT NOT NULL
);
CREATE UNIQUE INDEX link_uuid ON link (uuid);
CREATE INDEX link_parent ON link (parent_id);
CREATE INDEX link_child ON link (child_id);

CREATE TABLE configurable_part (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    part_uuid TEXT NOT NULL, type_mask BIGINT NOT NULL, default_handler TEXT NOT NULL
);
CREATE INDEX configurable_part_part ON configurable_part (part_uuid);

CREATE TABLE config_item (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    design_uuid TEXT NOT NULL, status TEXT NOT NULL, action_controlled BIGINT NOT NULL
);
CREATE INDEX config_item_design ON config_item (design_uuid, status);

CREATE TABLE category (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    name TEXT NOT NULL, description TEXT NOT NULL, exclusivity BIGINT NOT NULL, mandatory BIGINT NOT NULL,
    default_mode BIGINT NOT NULL, owner TEXT NOT NULL, organization TEXT NOT NULL
);
CREATE INDEX category_item ON category (config_item_id, name);
CREATE INDEX category_name ON category (name);

CREATE TABLE effectivity (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    type TEXT NOT NULL, option_name TEXT NOT NULL,
    category_id BIGINT REFERENCES category (id) DEFERRABLE INITIALLY DEFERRED,
    category_name TEXT NOT NULL, description TEXT NOT NULL, used BIGINT NOT NULL,
    first_number BIGINT NOT NULL, last_number BIGINT NOT NULL, start_date TEXT NOT NULL, end_date TEXT NOT NULL,
    start_program TEXT NOT NULL, start_milestone TEXT NOT NULL, start_offset BIGINT NOT NULL,
    end_program TEXT NOT NULL, end_milestone TEXT NOT NULL, end_offset BIGINT NOT NULL
);
CREATE INDEX effectivity_item ON effectivity (config_item_id, option_name);
CREATE INDEX effectivity_option_name ON effectivity (option_name);
CREATE INDEX effectivity_category ON effectivity (category_id);

CREATE TABLE effectivity_option (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    effectivity_id BIGINT NOT NULL REFERENCES effectivity (id) DEFERRABLE INITIALLY DEFERRED,
    position BIGINT NOT NULL, option_name TEXT NOT NULL
);
CREATE INDEX effectivity_option_item ON effectivity_option (config_item_id);
CREATE INDEX effectivity_option_effectivity ON effectivity_option (effectivity_id);
CREATE INDEX effectivity_option_option ON effectivity_option (option_name);

CREATE TABLE effectivity_attribute (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    effectivity_id BIGINT NOT NULL REFERENCES effectivity (id) DEFERRABLE INITIALLY DEFERRED,
    position BIGINT NOT NULL, name TEXT NOT NULL, value TEXT NOT NULL
);
CREATE INDEX effectivity_attribute_item ON effectivity_attribute (config_item_id);
CREATE INDEX effectivity_attribute_effectivity ON effectivity_attribute (effectivity_id);

CREATE TABLE category_default (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    category_id BIGINT NOT NULL REFERENCES category (id) DEFERRABLE INITIALLY DEFERRED,
    position BIGINT NOT NULL,
    option_id BIGINT NOT NULL REFERENCES effectivity (id) DEFERRABLE INITIALLY DEFERRED
);
CREATE INDEX category_default_item ON category_default (config_item_id);
CREATE INDEX category_default_category ON category_default (category_id);
CREATE INDEX category_default_option ON category_default (option_id);

CREATE TABLE link_effectivity (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    link_id BIGINT NOT NULL REFERENCES link (id) DEFERRABLE INITIALLY DEFERRED,
    effectivity_id BIGINT NOT NULL REFERENCES effectivity (id) DEFERRABLE INITIALLY DEFERRED
);
CREATE INDEX link_effectivity_link ON link_effectivity (link_id, effectivity_id);
CREATE INDEX link_effectivity_effectivity ON link_effectivity (effectivity_id);

CREATE TABLE site (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    name TEXT NOT NULL
);

CREATE TABLE organization (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    name TEXT NOT NULL,
    site_id BIGINT REFERENCES site (id) DEFERRABLE INITIALLY DEFERRED
);

CREATE TABLE role (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    name TEXT NOT NULL,
    organization_id BIGINT REFERENCES organization (id) DEFERRABLE INITIALLY DEFERRED
);

CREATE TABLE person (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    name TEXT NOT NULL, first_name TEXT NOT NULL, last_name TEXT NOT NULL,
    role_id BIGINT REFERENCES role (id) DEFERRABLE INITIALLY DEFERRED,
    privilege BIGINT NOT NULL
);
CREATE INDEX person_name ON person (name);

CREATE TABLE people_above (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    person_id BIGINT REFERENCES person (id) DEFERRABLE INITIALLY DEFERRED,
    organization_id BIGINT REFERENCES organization (id) DEFERRABLE INITIALLY DEFERRED,
    above_person_id BIGINT REFERENCES person (id) DEFERRABLE INITIALLY DEFERRED,
    above_organization_id BIGINT REFERENCES organization (id) DEFERRABLE INITIALLY DEFERRED
);

CREATE TABLE function_right (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    function TEXT NOT NULL,
    role_id BIGINT REFERENCES role (id) DEFERRABLE INITIALLY DEFERRED,
    site TEXT NOT NULL, allowed BIGINT NOT NULL
);
CREATE INDEX function_right_function ON function_right (function);

CREATE TABLE administrator_value (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    value_group TEXT NOT NULL, name TEXT NOT NULL, value TEXT NOT NULL
);

CREATE TABLE event (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    published BIGINT NOT NULL, publisher TEXT NOT NULL, instance_uuid TEXT NOT NULL, number BIGINT NOT NULL
);

-- The corporate dictionary. Its design is a reserved identifier that no part has.
INSERT INTO config_item (id, version, last_modifier, last_update, design_uuid, status, action_controlled)
    VALUES (1, 1, '', 0, '00000000000000000000000000000000000000000000000001', 'D', 0);
