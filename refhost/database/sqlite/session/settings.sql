-- One row: the setting that the call loads or saves and that becomes the user's default for its type.
create temp table CHOSEN_SETTING (ID integer);
