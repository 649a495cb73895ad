-- Why a delivery note cannot be the source of another: the code of the refusal, null when it can. An identifier that is
-- null, 0 or negative is none and restricts nothing.
--
-- `dodvid` is the source's supplier, `supplier` that of the note which is filled.
--
-- in: id
-- in: dodvid
-- in: note
-- in: supplier

select case
           when not exists (select 1 from DODAK where ID = :id) then 'ML021'
           when :note > 0 and not exists (select 1 from DODAK where ID = :note) then 'ML010'
           when :id = :note then 'ML027'
           when :dodvid > 0 and :supplier > 0 and :dodvid <> :supplier then 'ML024'
       end;
