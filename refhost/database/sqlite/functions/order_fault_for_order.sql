-- Why an order or an order template cannot be the source of another: the code of the refusal, null when it can. Both
-- kinds have one sequence of identifiers, so that the same rules decide about either. An identifier that is null, 0 or
-- negative is none and restricts nothing.
--
-- `skldid` and `dodvid` are the source's, `warehouse` and `supplier` those of the document which is filled.
--
-- in: id
-- in: skldid
-- in: dodvid
-- in: document
-- in: warehouse
-- in: supplier

select case
           when not exists (select 1 from DODOBJEDNAVKA where ID = :id) then 'ML021'
           when :document > 0 and not exists (select 1 from DODOBJEDNAVKA where ID = :document) then 'ML012'
           when :id = :document then 'ML027'
           when :dodvid > 0 and :supplier > 0 and :dodvid <> :supplier then 'ML024'
           when :skldid > 0 and :warehouse > 0 and :skldid <> :warehouse then 'ML025'
       end;
