-- A source that the clerk names while his choice is checked: what is sought, and the records it may be.

-- One row. TYPED is his text, null for none; ID the record that he picked, null for none. DAY is the day whose price
-- lists count, where they do.
create temp table SOURCE_SOUGHT (KIND text, TYPED text, ID integer, DAY text);

-- NAMED: whether TYPED is the record's number or name. FAULT: the code of the refusal, null for an admissible record.
create temp table SOURCE_CANDIDATE (ID integer, LABEL text, NAMED integer, FAULT text);
