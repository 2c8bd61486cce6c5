-- Rules of dictionaries, what they name, and compatibility matrices. Names are judged by the store, so their indexes
-- are plain.

CREATE TABLE compatibility_matrix (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    name TEXT NOT NULL, description TEXT NOT NULL, owner TEXT NOT NULL, organization TEXT NOT NULL
);
CREATE INDEX compatibility_matrix_item ON compatibility_matrix (config_item_id, name);

CREATE TABLE matrix_column (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    matrix_id BIGINT NOT NULL REFERENCES compatibility_matrix (id) DEFERRABLE INITIALLY DEFERRED,
    position BIGINT NOT NULL,
    category_id BIGINT NOT NULL REFERENCES category (id) DEFERRABLE INITIALLY DEFERRED
);
CREATE INDEX matrix_column_item ON matrix_column (config_item_id);
CREATE INDEX matrix_column_matrix ON matrix_column (matrix_id);
CREATE INDEX matrix_column_category ON matrix_column (category_id);

CREATE TABLE config_rule (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    type BIGINT NOT NULL, name TEXT NOT NULL, rule_text TEXT NOT NULL, description TEXT NOT NULL,
    owner TEXT NOT NULL, organization TEXT NOT NULL,
    matrix_id BIGINT REFERENCES compatibility_matrix (id) DEFERRABLE INITIALLY DEFERRED,
    position BIGINT NOT NULL
);
CREATE INDEX config_rule_item ON config_rule (config_item_id, type, name);
CREATE INDEX config_rule_matrix ON config_rule (matrix_id);

CREATE TABLE rule_reference (
    id @KEY@, version BIGINT NOT NULL, last_modifier TEXT NOT NULL, last_update BIGINT NOT NULL,
    config_item_id BIGINT NOT NULL REFERENCES config_item (id) DEFERRABLE INITIALLY DEFERRED,
    rule_id BIGINT NOT NULL REFERENCES config_rule (id) DEFERRABLE INITIALLY DEFERRED,
    category_name TEXT NOT NULL, option_name TEXT NOT NULL
);
CREATE INDEX rule_reference_rule ON rule_reference (rule_id);
CREATE INDEX rule_reference_option ON rule_reference (option_name);
CREATE INDEX rule_reference_category ON rule_reference (category_name);
CREATE INDEX rule_reference_item ON rule_reference (config_item_id);
