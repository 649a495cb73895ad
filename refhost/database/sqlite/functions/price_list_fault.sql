-- Why a supplier's price list cannot fill an order or order template: the code of the refusal, null when it can. An
-- identifier that is null, 0 or negative is none and restricts nothing; without a moment the document's own counts.
--
-- in: dodvid
-- in: document
-- in: supplier
-- in: moment

select case
           when not exists (select 1 from DODAVATEL where ID = :dodvid) then 'ML021'
           when :document > 0 and not exists (select 1 from DODOBJEDNAVKA where ID = :document) then 'ML012'
           when :supplier > 0 and :dodvid <> :supplier then 'ML024'
           when not exists (select 1
                            from PRICE_V
                            where DODVID = :dodvid
                              and (select date(coalesce(:moment, order_moment(:document))))
                                  between FIRSTDAY and LASTDAY)
               then 'ML028'
       end;
