-- Begins a save, for which it empties this session's rows and opens them for new ones. Refuses nothing.
--
-- begins: a save

delete from NOTE_STAGED;
delete from ORDER_STAGED;
update STAGING set STATE = 'open', LASTROW = -1;
