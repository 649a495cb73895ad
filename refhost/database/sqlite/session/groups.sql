-- A stock group that the clerk names while his choice is checked; one row, as in SOURCE_SOUGHT.
create temp table GROUP_SOUGHT (LEVEL integer, TYPED text, ID integer);
