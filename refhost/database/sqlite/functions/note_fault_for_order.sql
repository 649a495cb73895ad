-- Why a delivery note cannot be the source of an order or order template: the code of the refusal, null when it can. An
-- identifier that is null, 0 or negative is none and restricts nothing.
--
-- `dodvid` is the note's supplier, `warehouse` and `supplier` those of the document which is filled.
--
-- in: id
-- in: dodvid
-- in: document
-- in: warehouse
-- in: supplier

select case
           when not exists (select 1 from DODAK where ID = :id) then 'ML021'
           when :document > 0 and not exists (select 1 from DODOBJEDNAVKA where ID = :document) then 'ML012'
           when :dodvid > 0 and :supplier > 0 and :dodvid <> :supplier then 'ML024'
           when :warehouse > 0 and :warehouse <> (select SKLDID from DODAK where ID = :id) then 'ML025'
       end;
