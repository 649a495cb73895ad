-- 1 for a delivery note that can be the source of another: see note_fault_for_note.
--
-- in: id
-- in: dodvid
-- in: note
-- in: supplier

select note_fault_for_note(:id, :dodvid, :note, :supplier) is null;
